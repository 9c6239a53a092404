// Numbers of everything that a window is made of: controls, menu entries, windows, icons.
//
// Tests and accessibility tools find a control by its number, so a number never changes its
// meaning. Each is unique in the whole program.
#pragma once

// Icons
#define IDI_ZENTAR 1
#define IDI_TAB_SHOTS 11
#define IDI_TAB_DEMOS 12
#define IDI_TAB_MISC 13
#define IDI_TAB_Q3TEXT 14
#define IDI_TAB_FIRSTAID 15
#define IDI_INSTALLER 16

// Cursors
#define IDC_CURSOR_FULLVIEW 21
#define IDC_CURSOR_DRAG 22

// Windows
#define IDW_Form1 101
#define IDW_Form2 102
#define IDW_Form3 103
#define IDW_Form4 104
#define IDW_Form9 109

// Splash
#define IDC_labLoading 1001
#define IDC_labVersion 1002

// Main window
#define IDC_optGameQuake1 1101
#define IDC_optGameQuake2 1102
#define IDC_optGameQuake3 1103
#define IDC_labMod 1104
#define IDC_lstMods 1105
#define IDC_SSTab1 1106
#define IDC_tmrQ3Game 1107
#define IDC_pagShots 1111
#define IDC_pagDemos 1112
#define IDC_pagMisc 1113
#define IDC_pagQ3Text 1114
#define IDC_pagFirstAid 1115

// Demos tab
#define IDC_lstDemos 1201
#define IDC_labNumDemos 1202
#define IDC_fraDemoProperties 1203
#define IDC_labDemoVersion 1204
#define IDC_labDemoName 1205
#define IDC_labDemoMap 1206
#define IDC_labDemoSize 1207
#define IDC_labDemoDate 1208
#define IDC_fraDemos 1209
#define IDC_fraTextContain 1210
#define IDC_optTextNo 1211
#define IDC_optTextYes 1212
#define IDC_chkShowAllDemos 1213
#define IDC_txtDemoFilter 1214
#define IDC_lstDemoFilter 1215
#define IDC_cmdFilter 1216
#define IDC_labDemo1 1217
#define IDC_labDemo2 1218
#define IDC_labFilterInfo 1219

// Misc tab
#define IDC_fraDemoInstaller 1301
#define IDC_picDemoInstaller 1302
#define IDC_labDemoInstaller 1303
#define IDC_cmdDemoInstaller 1304
#define IDC_fraQ3BackRest 1311
#define IDC_labQ3BackRest 1312
#define IDC_cmdQ3Backup 1313
#define IDC_cmdQ3Restore 1314
#define IDC_chkBackupAll 1315
#define IDC_fraQ3ConfigEdit 1316
#define IDC_labQ3ConfigEdit 1317
#define IDC_cmdQ3ConfigEdit 1318

// Preferences
#define IDC_tabPreferences 1401
#define IDC_pagGeneral 1402
#define IDC_labRemote 1403
#define IDC_txtRemote 1404
#define IDC_cmdRemote 1405
#define IDC_chkExpert 1406
#define IDC_chkAutoShowAll 1407
#define IDC_chkAutoNextShot 1408
#define IDC_chkAutoNextDemo 1409

// Shots tab
#define IDC_lstScreenshots 1501
#define IDC_labNumShots 1502
#define IDC_imgShotView 1503
#define IDC_fraPreviewMode 1504
#define IDC_labPreviewMode 1505
#define IDC_optModePreview 1506
#define IDC_optModeReal 1507

// Full-size viewer
#define IDC_picFull 1601

// Chat frame of the Misc tab
#define IDC_fraChat 1701
#define IDC_cmdScanForNames 1702
#define IDC_cmdClearNames 1703
#define IDC_chkTranscriptHTML 1704
#define IDC_labColourUsed 1705
#define IDC_txtTranscriptMessages 1706
#define IDC_chkTranscriptGameplay 1707
#define IDC_cmdCreateTranscript 1708
// The boxes of the players: 24 numbers in a row.
#define IDC_txtPlayer1 1711
#define IDC_txtPlayer2 1712
#define IDC_txtPlayer24 1734

// Q3 Text tab
#define IDC_labQ3Name 1801
#define IDC_rtbQ3Text 1802
#define IDC_cmdQ3TextBlack 1803
#define IDC_cmdQ3TextRed 1804
#define IDC_cmdQ3TextGreen 1805
#define IDC_cmdQ3TextYellow 1806
#define IDC_cmdQ3TextBlue 1807
#define IDC_cmdQ3TextCyan 1808
#define IDC_cmdQ3TextMagenta 1809
#define IDC_cmdQ3TextWhite 1810
#define IDC_labQ3TextCode 1811
#define IDC_fraQ3Text 1812
#define IDC_optQ3TextName 1813
#define IDC_optQ3TextServer 1814
#define IDC_optQ3TextPublic 1815
#define IDC_optQ3TextTeam 1816
#define IDC_optQ3TextAttacker 1817
#define IDC_optQ3TextTarget 1818
#define IDC_chkQ3TextKeyfox 1819
#define IDC_chkQ3TextOSP 1820
#define IDC_txtQ3TextCode 1821
#define IDC_cmdQ3TextSave 1822
#define IDC_cmdQ3TextOpen 1823
#define IDC_cmdQ3TextClipboard 1824
#define IDC_cmdQ3TextQ3Config 1825
#define IDC_chkQ3TextAddSlash 1826

// First Aid tab
#define IDC_labFirstAid 1901
#define IDC_labSymptom 1902
#define IDC_lstSymptoms 1903
#define IDC_labRemedy 1904
#define IDC_txtRemedy 1905
#define IDC_cmdRemedy1 1906
#define IDC_cmdRemedy2 1907

// Help
#define IDC_labHeader 2901
#define IDC_lstQuestions 2902
#define IDC_txtAnswer 2903
#define IDC_cmdBack 2904

// Menu bar
#define IDM_mnuProgram 3001
#define IDM_mnuProgramPreferences 3002
#define IDM_mnuProgramExit 3003
#define IDM_mnuGame 3011
#define IDM_mnuGameQuake1 3012
#define IDM_mnuGameQuake2 3013
#define IDM_mnuGameQuake3 3014
#define IDM_mnuGameGetFolder 3015
#define IDM_mnuGameCurrentFolders 3016
#define IDM_mnuHelp 3021
#define IDM_mnuHelpTopics 3022
#define IDM_mnuHelpAbout 3023

// Popup menu "Demos"
#define IDM_mnuDemos 3101
#define IDM_mnuDemosPlay 3102
#define IDM_mnuDemosDelete 3103
#define IDM_mnuDemosRename 3104
#define IDM_mnuDemosRenameMap 3105
#define IDM_mnuDemosCopy 3106
#define IDM_mnuDemosMove 3107
#define IDM_mnuDemosDeleteAll 3108
#define IDM_mnuDemosSearch 3109
#define IDM_mnuDemosSearchAll 3110
#define IDM_mnuDemosSearchDesc 3111
#define IDM_mnuDemosSearchMap 3112
#define IDM_mnuDemosRefresh 3113

// Popup menu "Screenshot"
#define IDM_mnuScreenshot 3201
#define IDM_mnuScreenshotShowFull 3202
#define IDM_mnuScreenshotProperties 3203
#define IDM_mnuScreenshotMakeJPEGOnly 3204
#define IDM_mnuScreenshotMakeJPEGAndKill 3205
#define IDM_mnuScreenshotSetWallpaper 3206
#define IDM_mnuScreenshotDelete 3207
#define IDM_mnuScreenshotDeletePreview 3208
#define IDM_mnuScreenshotRename 3209
#define IDM_mnuScreenshotCopy 3210
#define IDM_mnuScreenshotMove 3211
#define IDM_mnuScreenshotDeleteAllWallpaper 3212
#define IDM_mnuScreenshotDeleteAll 3213
#define IDM_mnuScreenshotDeleteAllPreview 3214
#define IDM_mnuScreenshotDeleteAllJPG 3215
#define IDM_mnuScreenshotDeleteAllTGA 3216
#define IDM_mnuScreenshotDeleteAllPCX 3217
#define IDM_mnuScreenshotRefresh 3218

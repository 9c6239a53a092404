// The controls of the Demos tab, by the names of the window's table.
#pragma once

#include "platform/controls.h"

namespace zentar {

struct DemosTabControls {
    ListBox& lstDemos;
    Label& labNumDemos;

    Frame& fraDemos;
    Frame& fraTextContain;
    OptionButton& optTextNo;
    OptionButton& optTextYes;
    CheckBox& chkShowAllDemos;
    TextBox& txtDemoFilter;
    ListBox& lstDemoFilter;
    Button& cmdFilter;
    Label& labDemo1;
    Label& labDemo2;
    Label& labFilterInfo;

    Frame& fraDemoProperties;
    Label& labDemoVersion;
    Label& labDemoName;
    Label& labDemoMap;
    Label& labDemoSize;
    Label& labDemoDate;

    MenuEntry& mnuDemosPlay;
    MenuEntry& mnuDemosDelete;
    MenuEntry& mnuDemosRename;
    MenuEntry& mnuDemosRenameMap;
    MenuEntry& mnuDemosCopy;
    MenuEntry& mnuDemosMove;
    MenuEntry& mnuDemosDeleteAll;
    MenuEntry& mnuDemosSearch;
    MenuEntry& mnuDemosSearchAll;
    MenuEntry& mnuDemosSearchDesc;
    MenuEntry& mnuDemosSearchMap;
    MenuEntry& mnuDemosRefresh;

    Timer& tmrQ3Game;
};

}  // namespace zentar

#include "ui/misc_tab_table.h"

#include "ui/resource.h"

namespace zentar {

namespace {

const ControlRow kRows[] = {
    {.id = IDC_fraDemoInstaller,
     .kind = ControlKind::Frame,
     .parent = IDC_pagMisc,
     .rect = {10, 4, 262, 118},
     .caption = "Q2 Demo Installer"},
    {.id = IDC_picDemoInstaller,
     .kind = ControlKind::Picture,
     .parent = IDC_fraDemoInstaller,
     .rect = {12, 26, 32, 32},
     .icon = IDI_INSTALLER},
    {.id = IDC_labDemoInstaller,
     .kind = ControlKind::Label,
     .parent = IDC_fraDemoInstaller,
     .rect = {56, 22, 194, 48},
     .caption = "Click the button to install a folder of demos into Q2."},
    {.id = IDC_cmdDemoInstaller,
     .kind = ControlKind::Button,
     .parent = IDC_fraDemoInstaller,
     .rect = {56, 80, 120, 25},
     .caption = "Install Demos",
     .tooltip = "Click here to select a folder of demos to install."},
};

}  // namespace

std::span<const ControlRow> MiscTabControlRows() { return kRows; }

}  // namespace zentar

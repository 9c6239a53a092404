// The names of the controls and menu entries behind their numbers, for logs and messages of tests.
#pragma once

#include <map>
#include <string>

namespace zentar {

// Reads the lines of ui/resource.h that define IDC_name, IDM_name or IDW_name. Without that file
// there are no names, and NameOf falls back to "#number".
std::map<int, std::string> ReadControlNames();

std::string NameOf(const std::map<int, std::string>& names, int id);

}  // namespace zentar

// The tables of the program's windows.
#pragma once

#include "platform/form_table.h"

namespace zentar {

const FormTable& SplashTable();       // Form1
const FormTable& MainWindowTable();   // Form2
const FormTable& FullViewTable();     // Form3
const FormTable& PreferencesTable();  // Form4
const FormTable& HelpTable();         // Form9

}  // namespace zentar

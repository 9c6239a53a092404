// The system's library of rich text editors.
#pragma once

namespace zentar {

// The window class of its editor; the first call loads the library, which takes long enough to be
// noticed when the program starts. Null where there is none.
const wchar_t* RichEditorClass();

}  // namespace zentar

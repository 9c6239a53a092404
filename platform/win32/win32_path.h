// Paths in the form in which Windows takes them at any length and changes nothing about them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zentar {

// The path in the system's own form ("\\?\C:\..."): slashes turned, "." and ".." resolved, no
// backslash at the end except for a root. Nothing when it is not absolute, or cannot be a path.
//
// Windows itself would resolve these too, but drop blanks and dots at the end of a name as well,
// so that another file would be meant.
std::optional<std::wstring> NativePath(std::string_view path);

// A path that may be in the system's own form, without what makes it that.
std::wstring WithoutPrefix(std::wstring_view path);

// A native path as other programs know it ("C:\..."), of which the old ones take no other form. The
// native path itself where Windows would read that as something else, or finds it too long.
std::wstring PlainPath(const std::wstring& nativePath);

// Whether new files may get the name at the end of a native path. Names that only this form can
// hold (a dot or a blank at the end, "con", "nul.txt") are refused: other programs, the user's
// own among them, could neither open nor delete such a file.
bool MayBeCreated(std::wstring_view nativePath);

// Where temporary files go, with a backslash at its end.
std::wstring TemporaryFolderPath();

// Whether two native paths lie on one drive or network share.
bool OnSameRoot(std::wstring_view one, std::wstring_view other);

// Whether two native paths differ, but only in the case of letters.
bool DifferInCaseOnly(std::wstring_view one, std::wstring_view other);

bool EndsInSeparator(std::string_view path);

}  // namespace zentar

#include "tests/contract/win32/visual_styles.h"

#include <string>

#include <gtest/gtest.h>

namespace zentar {

VisualStyles::VisualStyles() {
    const std::string manifest =
        R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">)"
        R"(<dependency><dependentAssembly><assemblyIdentity type="win32")"
        R"( name="Microsoft.Windows.Common-Controls" version="6.0.0.0")"
        R"( processorArchitecture="amd64" publicKeyToken="6595b64144ccf1df" language="*"/>)"
        R"(</dependentAssembly></dependency></assembly>)";
    folder_.Write("styles.manifest", manifest);
    const std::wstring file = (folder_.Path() / "styles.manifest").wstring();
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.lpSource = file.c_str();
    context_ = CreateActCtxW(&description);
    EXPECT_NE(context_, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
}

VisualStyles::~VisualStyles() {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
}

}  // namespace zentar

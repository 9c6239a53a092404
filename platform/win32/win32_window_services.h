// Dialogs, the clipboard, sounds, key states and the pointer of Windows.
#pragma once

#include "platform/win32/colour_dialog.h"
#include "platform/win32/win32_session.h"
#include "platform/window_services.h"

namespace zentar {

class Win32WindowServices : public WindowServices {
  public:
    explicit Win32WindowServices(Win32Session& session)
        : session_(session), colourDialog_(session) {}

    Answer Ask(const Message& message) override;
    std::optional<std::string> AskText(const TextQuestion& question) override;
    std::optional<std::string> ChooseFileToOpen(const FileQuestion& question) override;
    std::optional<std::string> ChooseFileToSave(const FileQuestion& question) override;
    std::optional<ColourRef> ChooseColour(ColourRef shown) override;
    Status PutOnClipboard(const std::string& text) override;
    bool HasWindowTitled(const std::string& title) override;
    void Sound(Beep beep) override;
    std::uint16_t KeyState(PollKey key) override;
    bool IsDown(PollKey key) override;
    Pointer SetPointer(Pointer pointer) override;
    void PumpPending() override;
    void Sleep(int milliseconds) override;

  private:
    Win32Session& session_;
    ColourDialog colourDialog_;
};

}  // namespace zentar

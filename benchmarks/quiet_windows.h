// The windowing system without anybody who answers: message boxes and dialogs close by
// themselves.
#pragma once

#include "platform/window_services.h"

namespace zentar::benchmarks {

class QuietWindows : public WindowServices {
  public:
    explicit QuietWindows(WindowServices& real) : real_(real) {}

    Answer Ask(const Message& message) override {
        return message.buttons == MessageButtons::Ok ? Answer::Ok : Answer::Yes;
    }
    std::optional<std::string> AskText(const TextQuestion& /*question*/) override { return {}; }
    std::optional<std::string> ChooseFileToOpen(const FileQuestion& /*question*/) override {
        return {};
    }
    std::optional<std::string> ChooseFileToSave(const FileQuestion& /*question*/) override {
        return {};
    }
    std::optional<ColourRef> ChooseColour(ColourRef /*shown*/) override { return {}; }
    Status PutOnClipboard(const std::string& /*text*/) override { return {}; }
    bool HasWindowTitled(const std::string& title) override { return real_.HasWindowTitled(title); }
    void Sound(Beep /*beep*/) override {}
    std::uint16_t KeyState(PollKey key) override { return real_.KeyState(key); }
    bool IsDown(PollKey key) override { return real_.IsDown(key); }
    Pointer SetPointer(Pointer pointer) override { return real_.SetPointer(pointer); }
    void PumpPending() override { real_.PumpPending(); }
    void Sleep(int milliseconds) override { real_.Sleep(milliseconds); }

  private:
    WindowServices& real_;
};

}  // namespace zentar::benchmarks

// What every control in memory has, whatever its kind.
#include "tests/doubles/memory_controls.h"

namespace zentar {

ControlCore::ControlCore(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : host_(host),
      row_(row),
      parent_(parent),
      text_(row.caption),
      tooltip_(row.tooltip),
      enabled_((row.flags & StartsDisabled) == 0),
      visible_((row.flags & StartsHidden) == 0),
      topTwips_(row.rect.top * 15) {}

bool ControlCore::EffectivelyEnabled() const {
    return enabled_ && (parent_ == nullptr || parent_->EffectivelyEnabled());
}

bool ControlCore::EffectivelyVisible() const {
    return visible_ && InFront() && (parent_ == nullptr || parent_->EffectivelyVisible());
}

bool ControlCore::CanTakeFocus() const {
    switch (row_.kind) {
        case ControlKind::Label:
        case ControlKind::Frame:
        case ControlKind::Picture:
        case ControlKind::ImageBox:
        case ControlKind::TabPage:
        case ControlKind::Timer:
            return false;
        default:
            return EffectivelyEnabled() && EffectivelyVisible();
    }
}

bool ControlCore::IsWithin(const ControlCore& ancestor) const {
    return this == &ancestor || (parent_ != nullptr && parent_->IsWithin(ancestor));
}

void ControlCore::Raise(const char* name, std::function<void()> ControlEvents::*event) {
    Log(name);
    const std::function<void()> procedure = events_.*event;  // it may set other procedures
    if (procedure)
        host_.RunProcedure(procedure);
}

void ControlCore::StoreEnabled(bool enabled) {
    Log(enabled ? "SetEnabled(true)" : "SetEnabled(false)");
    if (!enabled)
        host_.LeaveFocus(*this);
    enabled_ = enabled;
}

void ControlCore::StoreVisible(bool visible) {
    Log(visible ? "SetVisible(true)" : "SetVisible(false)");
    if (!visible)
        host_.LeaveFocus(*this);
    visible_ = visible;
}

void ControlCore::StoreTop(int twips) {
    Log("SetTop(" + std::to_string(twips) + ")");
    topTwips_ = twips;
}

void ControlCore::StoreText(const std::string& text) {
    Log("SetText(" + text + ")");
    text_ = text;
}

void ControlCore::StoreTooltip(const std::string& text) {
    Log("SetTooltip(" + text + ")");
    tooltip_ = text;
}

void ControlCore::TakeFocus() {
    Log("SetFocus()");
    if (CanTakeFocus())
        host_.MoveFocus(this);
}

void ControlCore::Log(const std::string& call) { host_.Log(row_.id, call); }

}  // namespace zentar

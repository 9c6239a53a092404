#include "tests/doubles/memory_form.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace zentar {
namespace {

bool TakesText(ControlKind kind) {
    return kind == ControlKind::TextBox || kind == ControlKind::RichTextBox;
}

}  // namespace

MemoryForm::MemoryForm(const FormTable& table, std::shared_ptr<FormSession> session)
    : table_(table), session_(std::move(session)) {
    for (const ControlRow& row : table.controls)
        AddControl(row);
    for (const MenuRow& row : table.menus)
        AddMenu(row);
    session_->forms.push_back(this);
}

MemoryForm::~MemoryForm() {
    std::erase(session_->forms, this);
    std::erase(session_->modals, this);
    if (session_->front == this)
        session_->front = nullptr;
}

void MemoryForm::AddControl(const ControlRow& row) {
    ClaimId(row.id);
    if (row.kind == ControlKind::Timer) {
        timers_[row.id];
        return;
    }
    ControlCore* parent = row.parent == 0 ? nullptr : &Core(row.parent);
    controls_.push_back(MakeMemoryControl(*this, row, parent));
    byId_[row.id] = controls_.back().get();
}

void MemoryForm::AddMenu(const MenuRow& row) {
    if (row.parent != 0)
        MenuOf(row.parent);
    if (row.kind == MenuKind::Separator)
        return;
    ClaimId(row.id);
    menus_.emplace(row.id, row);
}

void MemoryForm::ClaimId(int id) {
    if (id == 0)
        Mistake("a control or menu entry has the number 0");
    if (!claimedIds_.emplace(id, true).second)
        Mistake("two rows have the number of " + NameOf(id));
}

ControlCore& MemoryForm::Core(int id) const {
    const auto control = byId_.find(id);
    if (control == byId_.end())
        Mistake("the window has no control " + NameOf(id));
    return *control->second;
}

MemoryTimer& MemoryForm::TimerOf(int id) {
    const auto timer = timers_.find(id);
    if (timer == timers_.end())
        Mistake("the window has no timer " + NameOf(id));
    return timer->second;
}

MemoryMenuEntry& MemoryForm::MenuOf(int id) {
    const auto entry = menus_.find(id);
    if (entry == menus_.end())
        Mistake("the window has no menu entry " + NameOf(id));
    return entry->second;
}

void MemoryForm::Show() {
    LogForm("Show()");
    shown_ = true;
    closed_ = false;
    if (focused_ == nullptr)
        MoveFocus(NextTabStop(nullptr, nullptr));
}

void MemoryForm::ShowModal() {
    if (shown_)
        return;
    if (events_.load)
        RunProcedure(events_.load);
    Show();
    MemoryForm* const before = session_->front;
    session_->modals.push_back(this);
    session_->procedures.EnterModal();
    Activate();
    const auto user = session_->users.find(table_.id);
    if (user != session_->users.end() && !closed_)
        user->second(*this);
    if (!closed_)
        UserClose();
    if (!closed_) {
        ADD_FAILURE() << "The modal window \"" << table_.caption << "\" would not close";
        closed_ = true;
        shown_ = false;
    }
    std::erase(session_->modals, this);
    session_->procedures.LeaveModal();
    const bool stands = std::count(session_->forms.begin(), session_->forms.end(), before) > 0;
    if (stands && before->shown_)
        before->Activate();
}

int MemoryForm::Level() const {
    const auto modal = std::find(session_->modals.begin(), session_->modals.end(), this);
    return modal == session_->modals.end() ? 0
                                           : static_cast<int>(modal - session_->modals.begin()) + 1;
}

void MemoryForm::Close() {
    LogForm("Close()");
    if (closeWaits_)
        return;
    closeWaits_ = true;
    const std::weak_ptr<FormSession> session = session_;
    session_->procedures.WhenIdle(Level(), [this, session] {
        const auto still = session.lock();
        if (still && std::count(still->forms.begin(), still->forms.end(), this) > 0)
            CloseNow();
    });
}

void MemoryForm::CloseNow() {
    bool goes = true;
    if (events_.queryUnload)
        RunProcedure([&] { goes = events_.queryUnload(); });
    closeWaits_ = false;  // a request made meanwhile was answered with this one
    if (!goes)
        return;
    LogForm("Closed");
    shown_ = false;
    closed_ = true;
    if (session_->front == this)
        session_->front = nullptr;
}

// Comes from the message loop, so it waits for the event procedure that caused it.
void MemoryForm::Activate() {
    const std::weak_ptr<FormSession> session = session_;
    session_->front = this;
    session_->procedures.WhenIdle(Level(), [this, session] {
        const auto still = session.lock();
        if (!still || std::count(still->forms.begin(), still->forms.end(), this) == 0)
            return;
        if (!shown_)
            return;
        LogForm("activate");
        if (events_.activate)
            RunProcedure(events_.activate);
    });
}

void MemoryForm::EndSession() {
    LogForm("sessionEnding");
    if (events_.sessionEnding)
        RunProcedure(events_.sessionEnding);
    closed_ = true;
    shown_ = false;
}

void MemoryForm::ShowPopup(int menuId) {
    if (MenuOf(menuId).Row().kind != MenuKind::Popup)
        Mistake(NameOf(menuId) + " is no popup menu");
    LogForm("ShowPopup(" + NameOf(menuId) + ")");
    PopupShown popup;
    popup.menuId = menuId;
    for (const auto& [id, entry] : menus_) {
        if (IsBelow(menuId, entry.Row()))
            popup.enabled[id] = entry.Enabled();
    }
    popups_.push_back(popup);
    if (popupUser_)
        popupUser_(menuId);
}

bool MemoryForm::IsBelow(int menuId, const MenuRow& row) {
    if (row.parent == 0)
        return false;
    return row.parent == menuId || IsBelow(menuId, MenuOf(row.parent).Row());
}

std::string MemoryForm::SelectedItem(int list) {
    const MemoryListBox& box = Get<MemoryListBox>(list);
    return box.SelectedIndex() < 0 ? std::string() : box.Item(box.SelectedIndex());
}

void MemoryForm::RunProcedure(const std::function<void()>& procedure) {
    const std::shared_ptr<FormSession> session = session_;  // outlives a window that goes meanwhile
    const std::function<void()> copy = procedure;
    session->procedures.Run(copy);
}

void MemoryForm::MoveFocus(ControlCore* to) {
    if (to == focused_)
        return;
    focused_ = to;
    if (!shown_)
        return;
    if (to != nullptr && TakesText(to->Row().kind))
        to->Raise("gotFocus", &ControlEvents::gotFocus);
}

void MemoryForm::LeaveFocus(const ControlCore& going) {
    if (focused_ != nullptr && focused_->IsWithin(going))
        MoveFocus(NextTabStop(focused_, &going));
}

// The stop of the Tab key after `from`, or the first one; none within `except`.
ControlCore* MemoryForm::NextTabStop(const ControlCore* from, const ControlCore* except) const {
    const auto at = std::find_if(controls_.begin(), controls_.end(),
                                 [&](const auto& control) { return control.get() == from; });
    const std::size_t count = controls_.size();
    const std::size_t start =
        at == controls_.end() ? 0 : static_cast<std::size_t>(at - controls_.begin()) + 1;
    for (std::size_t step = 0; step < count; ++step) {
        ControlCore* control = controls_[(start + step) % count].get();
        const bool excepted = except != nullptr && control->IsWithin(*except);
        if (control != from && !excepted && control->IsTabStop())
            return control;
    }
    return nullptr;
}

std::vector<ControlCore*> MemoryForm::ChildrenOf(int parent) const {
    std::vector<ControlCore*> children;
    for (const auto& control : controls_) {
        if (control->Row().parent == parent)
            children.push_back(control.get());
    }
    return children;
}

void MemoryForm::Log(int id, const std::string& call) {
    if (session_->log != nullptr)
        session_->log->Add(NameOf(id) + "." + call);
}

void MemoryForm::LogForm(const std::string& call) {
    if (session_->log != nullptr)
        session_->log->Add(NameOf(table_.id) + "." + call);
}

std::unique_ptr<Form> MemoryFormFactory::Create(const FormTable& table) {
    return std::make_unique<MemoryForm>(table, session_);
}

MemoryForm* MemoryFormFactory::Find(int tableId) const {
    for (auto form = session_->forms.rbegin(); form != session_->forms.rend(); ++form) {
        if ((*form)->Table().id == tableId)
            return *form;
    }
    return nullptr;
}

MemoryForm& MemoryFormFactory::Get(int tableId) {
    MemoryForm* form = Find(tableId);
    if (form == nullptr)
        Mistake("there is no window " + NameOf(session_->names, tableId));
    return *form;
}

void MemoryFormFactory::SetUser(int tableId, std::function<void(MemoryForm&)> user) {
    session_->users[tableId] = std::move(user);
}

}  // namespace zentar

#include "platform/win32/accessible_control.h"

#include <objbase.h>
#include <oleacc.h>

#include <atomic>
#include <string>
#include <utility>

#include "platform/nviewlib/win32/resources.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

using nviewlib::ComPointer;
using nviewlib::Made;

LONG RoleOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
            return ROLE_SYSTEM_STATICTEXT;
        case ControlKind::Button:
        case ControlKind::ColourButton:
            return ROLE_SYSTEM_PUSHBUTTON;
        case ControlKind::CheckBox:
            return ROLE_SYSTEM_CHECKBUTTON;
        case ControlKind::OptionButton:
            return ROLE_SYSTEM_RADIOBUTTON;
        case ControlKind::TextBox:
        case ControlKind::RichTextBox:
            return ROLE_SYSTEM_TEXT;
        case ControlKind::ListBox:
            return ROLE_SYSTEM_LIST;
        case ControlKind::Frame:
            return ROLE_SYSTEM_GROUPING;
        case ControlKind::Picture:
        case ControlKind::ImageBox:
        case ControlKind::PictureBox:
            return ROLE_SYSTEM_GRAPHIC;
        case ControlKind::Tab:
            return ROLE_SYSTEM_PAGETABLIST;
        case ControlKind::TabPage:
            return ROLE_SYSTEM_PROPERTYPAGE;
        case ControlKind::Timer:
            break;
    }
    return ROLE_SYSTEM_CLIENT;
}

bool IsControlItself(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// A reader may keep it for longer than the control lives.
class AccessibleControl final : public IAccessible {
  public:
    AccessibleControl(ComPointer<IAccessible> system, const ControlRow& row)
        : system_(std::move(system)), name_(Widen(row.name)), role_(RoleOf(row.kind)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible) {
            *object = static_cast<IAccessible*>(this);
            AddRef();
            return S_OK;
        }
        // The control's window and the entries of a list are the system's affair.
        return system_->QueryInterface(id, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        if (name_.empty() || !IsControlItself(child)) {
            return system_->get_accName(child, name);
        }
        *name = SysAllocString(name_.c_str());
        return *name == nullptr ? E_OUTOFMEMORY : S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        if (!IsControlItself(child)) {
            return system_->get_accRole(child, role);
        }
        role->vt = VT_I4;
        role->lVal = role_;
        return S_OK;
    }

    // All else is as the system says.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return system_->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT which, LCID locale, ITypeInfo** info) override {
        return system_->GetTypeInfo(which, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* numbers) override {
        return system_->GetIDsOfNames(id, names, count, locale, numbers);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argument) override {
        return system_->Invoke(member, id, locale, flags, parameters, result, exception, argument);
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return system_->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
        return system_->get_accChildCount(count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        return system_->get_accChild(child, object);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return system_->get_accValue(child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
        return system_->get_accDescription(child, description);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        return system_->get_accState(child, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override {
        return system_->get_accHelp(child, help);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return system_->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
        return system_->get_accKeyboardShortcut(child, shortcut);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
        return system_->get_accFocus(child);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        return system_->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return system_->get_accDefaultAction(child, action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return system_->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override {
        return system_->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return system_->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
        return system_->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        return system_->accDoDefaultAction(child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
        return system_->put_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return system_->put_accValue(child, value);
    }

  private:
    ~AccessibleControl() = default;

    ComPointer<IAccessible> system_;
    std::wstring name_;
    LONG role_;
    std::atomic<ULONG> references_{1};
};

// Loaded when the first reader asks: most users have none, and the program starts faster without.
// Stays until the program ends, as readers may hold objects of it.
struct OleaccLibrary {
    LPFNCREATESTDACCESSIBLEOBJECT createStandard = nullptr;
    LPFNLRESULTFROMOBJECT resultOf = nullptr;

    static const OleaccLibrary& Get() {
        static const OleaccLibrary library;
        return library;
    }

  private:
    OleaccLibrary() {
        const HMODULE module = LoadLibraryExW(L"oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (module != nullptr) {
            Find(module, "CreateStdAccessibleObject", createStandard);
            Find(module, "LresultFromObject", resultOf);
        }
    }

    template <typename Function>
    static void Find(HMODULE module, const char* name, Function& function) {
        function =
            reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    }
};

}  // namespace

void AnnotateName(HWND control, const ControlRow& row) {
    const std::wstring name = Widen(row.name);
    if (name.empty()) {
        return;
    }
    if (auto services = Made<IAccPropServices>([](IAccPropServices** made) {
            return CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                    IID_IAccPropServices, reinterpret_cast<void**>(made));
        })) {
        services->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                 PROPID_ACC_NAME, name.c_str());
    }
}

std::optional<LRESULT> AnswerScreenReader(HWND control, const ControlRow& row, WPARAM wParam) {
    const OleaccLibrary& library = OleaccLibrary::Get();
    if (library.createStandard == nullptr || library.resultOf == nullptr) {
        return std::nullopt;
    }
    auto system = Made<IAccessible>([&](IAccessible** object) {
        return library.createStandard(control, OBJID_CLIENT, IID_IAccessible,
                                      reinterpret_cast<void**>(object));
    });
    if (!system) {
        return std::nullopt;
    }
    const ComPointer<IAccessible> object(new AccessibleControl(std::move(system), row));
    return library.resultOf(IID_IAccessible, wParam, object.get());
}

}  // namespace zentar

#include "platform/win32/accessible_name.h"

#include <objbase.h>
#include <oleacc.h>

#include <string>

#include "platform/win32/win32_text.h"

namespace zentar {

void SetAccessibleName(HWND control, const char* name) {
    const std::wstring wide = Widen(name);
    if (wide.empty()) {
        return;
    }
    void* object = nullptr;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IAccPropServices, &object))) {
        return;
    }
    auto* services = static_cast<IAccPropServices*>(object);
    services->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                             PROPID_ACC_NAME, wide.c_str());
    services->Release();
}

}  // namespace zentar

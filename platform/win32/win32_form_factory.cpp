#include "platform/win32/win32_form_factory.h"

#include "platform/win32/win32_form.h"

namespace zentar {

std::unique_ptr<Form> Win32FormFactory::Create(const FormTable& table) {
    return std::make_unique<Win32Form>(table, session_);
}

}  // namespace zentar

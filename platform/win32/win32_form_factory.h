// Makes the program's windows.
#pragma once

#include "platform/form.h"
#include "platform/win32/win32_session.h"

namespace zentar {

class Win32FormFactory : public FormFactory {
  public:
    explicit Win32FormFactory(Win32Session& session) : session_(session) {}
    std::unique_ptr<Form> Create(const FormTable& table) override;

  private:
    Win32Session& session_;
};

}  // namespace zentar

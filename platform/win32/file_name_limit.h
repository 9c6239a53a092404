// Keeps the name in a file dialog as short as the dialog can take.
#pragma once

#include <windows.h>

#include <shobjidl.h>

#include <cstddef>

namespace zentar {

// Wine's dialog overruns its memory when the folder and the name in it are longer than a path used
// to be. While this stands, the box for the name takes no more than what fits. The dialog of
// Windows, which tells the user, has no such box.
class FileNameLimit : public IFileDialogEvents {
  public:
    // The dialog may append an extension of so many letters, with its dot.
    FileNameLimit(IFileDialog& dialog, std::size_t extension);
    FileNameLimit(const FileNameLimit&) = delete;
    FileNameLimit& operator=(const FileNameLimit&) = delete;
    virtual ~FileNameLimit();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* /*dialog*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog* /*dialog*/,
                                               IShellItem* /*folder*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog* /*dialog*/, IShellItem* /*item*/,
                                               FDE_SHAREVIOLATION_RESPONSE* /*response*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* /*dialog*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog* /*dialog*/, IShellItem* /*item*/,
                                          FDE_OVERWRITE_RESPONSE* /*response*/) override {
        return E_NOTIMPL;
    }

  private:
    void Apply(IFileDialog& dialog) const;

    IFileDialog& dialog_;
    std::size_t extension_;
    DWORD cookie_ = 0;
    bool advised_;
};

}  // namespace zentar

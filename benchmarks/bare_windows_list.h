// The least that listing a folder takes on Windows: the system's enumeration, a sort, a list box.
#pragma once

#include <cstddef>
#include <string>

namespace zentar::benchmarks {

class BareWindowsList {
  public:
    BareWindowsList();
    ~BareWindowsList();
    BareWindowsList(const BareWindowsList&) = delete;
    BareWindowsList& operator=(const BareWindowsList&) = delete;

    // Lists the files of that extension without it; gives their number.
    std::size_t Fill(const std::wstring& folder, const std::wstring& extension);

  private:
    void* frame_;
    void* list_;
};

}  // namespace zentar::benchmarks

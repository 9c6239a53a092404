// COM with OLE, which the folder picker and what screen readers are told are made of.
#pragma once

namespace zentar {

// Loading it takes long enough to be noticed when the program starts, so whoever needs it asks for
// it. Made, used and destroyed on the thread that runs the windows.
class OleLibrary {
  public:
    OleLibrary() = default;
    OleLibrary(const OleLibrary&) = delete;
    OleLibrary& operator=(const OleLibrary&) = delete;
    ~OleLibrary();

    // From the first call on it is there; where it cannot be, what needs it fails by itself.
    void Need();

  private:
    bool asked_ = false;
    bool loaded_ = false;
};

}  // namespace zentar

// Yardsticks: what the system's own calls take for the same pictures, with nothing around them.
#pragma once

#include <filesystem>
#include <string>

namespace zentar::benchmarks {

// Writes a JPEG file of quality 80 by the Windows Imaging Component. `pixels` holds 24 bits each.
void EncodeBareJpg(const std::filesystem::path& file, std::string& pixels, int width, int height);

// Draws a bitmap of that size into a window with one BitBlt.
class BareBlit {
  public:
    BareBlit(void* window, int width, int height);
    ~BareBlit();
    BareBlit(const BareBlit&) = delete;
    BareBlit& operator=(const BareBlit&) = delete;

    // All that can be seen, from that corner of the bitmap on.
    void Draw(int left, int top);

  private:
    void* window_;
    void* context_;
    void* memory_;
    void* bitmap_;
};

}  // namespace zentar::benchmarks

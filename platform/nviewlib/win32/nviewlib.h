// What nviewlib.dll exports. All four are for one thread at a time; none throws.
//
// Paths are UTF-8, absolute or relative to the current directory, of any length.
#pragma once

#include <windows.h>

extern "C" {

// Makes a TGA, PCX, JPG, BMP or GIF file the current image and gives a bitmap of it: a DIB section
// of 24 bits a pixel, bottom up, which the caller deletes. Null when the file cannot be read, is no
// image or too large a one; there is then no current image. The former one is given up in any case.
//
// `progress` is not used; pass 0.
HBITMAP NViewLibLoad(const char* path, int progress);

// The current image's size in pixels; 0 while there is none.
int GetWidth();
int GetHeight();

// Writes the current image as a JPEG file, over one that is there; quality 0 to 100. Not 0 when
// the whole file was written; when 0, one that was there is as it was.
int NViewLibSaveAsJPG(int quality, const char* path);

}  // extern "C"

// stb_image's code, compiled as ours is. It is measured against, and in no other program.
#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_TGA
#include <stb/stb_image.h>

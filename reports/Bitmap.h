// Device-independent bitmaps (.bmp) for the report's pictures: written from
// and read into cairo image surfaces. Written as 24-bit, bottom-up, with no
// compression; read back in that form and in the 32-bit one.
#pragma once

#include <cairo.h>

#include <string>

// Writes the surface (ARGB32 or RGB24) as a 24-bit bitmap. False when the
// file cannot be written.
bool Bitmap_Write(cairo_surface_t* surface, const std::string& path);

// A new RGB24 image surface from a bitmap's bytes, or nullptr when they are
// no uncompressed 24- or 32-bit bitmap of a sane size. The caller destroys it.
cairo_surface_t* Bitmap_Decode(const std::string& bytes);

// Reads and decodes the file at path; nullptr as above or when unreadable.
cairo_surface_t* Bitmap_Read(const std::string& path);

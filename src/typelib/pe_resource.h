#pragma once
// The TYPELIB resource of a PE file (.dll, .ocx, .exe; PE32 and PE32+), read from the file's bytes.

#include "typelib/byte_view.h"

namespace quillet::typelib {

// Whether the bytes start like a DOS/PE executable ("MZ").
bool LooksLikePeFile(ByteView file);

// The bytes of the TYPELIB resource with the number (the first one when `number` is 0), a view
// into `file`. Throws TypeLibError when the file is no PE file or has no such resource.
ByteView TypeLibResource(ByteView file, long number);

}  // namespace quillet::typelib

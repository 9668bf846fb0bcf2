#pragma once

/// The way in for a host that loads the library with dlopen. Objects cross this border as opaque
/// pointers; nothing throws through it.
extern "C" {

/// Version of the library, "6.0.3".
const char* korvantes_version();

/// A new KORVAN as a `std::shared_ptr<korvantes::KORVAN>*`, nullptr when memory runs out. The host
/// must be built with the same compiler and headers, as the pointer is used as that C++ type.
void* korvantes_create();

/// Gives such a pointer back. The object lives on in the module.
void korvantes_release(void* component);
}

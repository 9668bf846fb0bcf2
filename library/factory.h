#pragma once

/// Entry points for a host that loads the library with dlopen. No exception leaves them.
///
/// Rules for such a host:
/// - It uses the headers of the library's own major version, which is also that of the SONAME, and
///   the same C++ standard library with the same ABI settings.
/// - It links libkorvantes-runtime and libkorvantes-outside, which the library loads too: both
///   sides then share one current desktop, and the classes of errors and controls.
/// - It opens the library with RTLD_NOW, RTLD_LOCAL or RTLD_GLOBAL, and never closes it: the module
///   keeps its newest object, and open forms, errors and functions handed over have code in it.
/// - It calls everything from its one user-interface thread.
///
/// Rules for the library: within a major version the operations of KORVAN keep their order and
/// signatures, new ones come last, and no base class is added; runtime and outside keep their
/// classes as they are.
extern "C" {

/// Version of the library, "6.0.3".
const char* korvantes_version();

/// Creates a KORVAN and returns it as a `std::shared_ptr<korvantes::KORVAN>*`; nullptr if memory
/// runs out. The object's operations are virtual, so the host need not link the library.
void* korvantes_create();

/// Deletes that pointer; nullptr is allowed. The newest object lives on in the module.
void korvantes_release(void* component);
}

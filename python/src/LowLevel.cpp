// The low-level layer: the library's own interface, names and return codes
// as they are in C++.
#include "Module.h"

#include <QRMKit.h>

namespace py = pybind11;

namespace qrmpy {

void DefineLowLevel(py::module_& module) { (void)module; }

}  // namespace qrmpy

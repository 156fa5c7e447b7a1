// The descriptive value classes that are not all inline.
#include "QRMName.h"

void QRMName::GetDisplayValues(std::vector<QRMDisplay*>& out) const { AppendDisplayPointers(out); }

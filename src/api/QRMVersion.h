// The padding step of version comparison, behind QRMKitAPI::MakeEqualLength.
#ifndef QRMKIT_VERSION_PADDING_H
#define QRMKIT_VERSION_PADDING_H

#include "VELString.h"

namespace qrm {

// Appends ".0" to the text with fewer fields (cut at ".", "-" and "_") until
// both have as many. 0, or -1 (neither text changed) when a text is not
// ASCII.
int PadToSameFieldCount(VELString& first, VELString& second);

}  // namespace qrm

#endif

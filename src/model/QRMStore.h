// The one setter of the value classes: store a copy, report success.
#ifndef QRMKIT_STORE_H
#define QRMKIT_STORE_H

#include "QRMKitTypes.h"

namespace qrm {

template <class Field, class Value>
QRMKitReturnCode Store(Field& field, const Value& value)
{
    field = value;
    return QRM_KIT_SUCCESS;
}

}  // namespace qrm

#endif

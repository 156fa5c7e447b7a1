// The one setter of the value classes: store the value (moved in when the
// caller hands it over), report success.
#ifndef QRMKIT_STORE_H
#define QRMKIT_STORE_H

#include "QRMKitTypes.h"

#include <utility>

namespace qrm {

template <class Field, class Value>
QRMKitReturnCode Store(Field& field, Value&& value)
{
    field = std::forward<Value>(value);
    return QRM_KIT_SUCCESS;
}

}  // namespace qrm

#endif

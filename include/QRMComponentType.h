// QRMComponentType: a component's type ("BIOS", "FRMW", ...) with its texts.
// A new object holds QRM_COMPONENT_SBDL (0).
#ifndef QRMKIT_COMPONENT_TYPE_H
#define QRMKIT_COMPONENT_TYPE_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMComponentType
    : public QRMValuedDisplayList<QRMComponentType, QRMComponentTypeValueEnum> {
};

#endif

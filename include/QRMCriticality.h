// QRMCriticality: how urgent a component is, with its texts. A new object
// holds QRM_CRITICALITY_LEVEL1 (0); the catalog reader sets
// QRM_CRITICALITY_UNSPECIFIED when a component says nothing.
#ifndef QRMKIT_CRITICALITY_H
#define QRMKIT_CRITICALITY_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMCriticality
    : public QRMValuedDisplayList<QRMCriticality, QRMCriticalityValueEnum> {
};

#endif

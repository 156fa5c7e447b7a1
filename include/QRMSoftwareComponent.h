// QRMSoftwareComponent: one update package of the catalog.
#ifndef QRMKIT_SOFTWARE_COMPONENT_H
#define QRMKIT_SOFTWARE_COMPONENT_H

#include "QRMKitTypes.h"

class QRMKIT_API QRMSoftwareComponent {
public:
    QRMSoftwareComponent();
    QRMSoftwareComponent(const QRMSoftwareComponent& other);
    QRMSoftwareComponent& operator=(const QRMSoftwareComponent& other);
    ~QRMSoftwareComponent();
};

#endif

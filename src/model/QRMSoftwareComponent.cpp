#include "QRMSoftwareComponent.h"

QRMSoftwareComponent::QRMSoftwareComponent() = default;
QRMSoftwareComponent::QRMSoftwareComponent(const QRMSoftwareComponent& other) = default;
QRMSoftwareComponent& QRMSoftwareComponent::operator=(const QRMSoftwareComponent& other) = default;
QRMSoftwareComponent::~QRMSoftwareComponent() = default;

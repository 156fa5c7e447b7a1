#include "QRMSoftwareBundle.h"

QRMSoftwareBundle::QRMSoftwareBundle() = default;
QRMSoftwareBundle::QRMSoftwareBundle(const QRMSoftwareBundle& other) = default;
QRMSoftwareBundle& QRMSoftwareBundle::operator=(const QRMSoftwareBundle& other) = default;
QRMSoftwareBundle::~QRMSoftwareBundle() = default;

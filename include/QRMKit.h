// QRMKit: everything a caller needs, in one include.
#ifndef QRMKIT_H
#define QRMKIT_H

#include "VELFile.h"
#include "VELGUID.h"
#include "VELString.h"
#include "VELTime.h"
#include "VELXML.h"

#include "QRMKitTypes.h"
#include "QRMOwnedList.h"
#include "QRMInventoryComponent.h"
#include "QRMSoftwareBundle.h"
#include "QRMSoftwareComponent.h"
#include "QRMKitAPI.h"

#endif

// QRMKit: everything a caller needs, in one include.
#ifndef QRMKIT_H
#define QRMKIT_H

#include "VELFile.h"
#include "VELGUID.h"
#include "VELString.h"
#include "VELTime.h"
#include "VELXML.h"

#include "QRMKitTypes.h"

#include "QRMCategory.h"
#include "QRMComponentType.h"
#include "QRMCriticality.h"
#include "QRMDisplay.h"
#include "QRMImportantInfo.h"
#include "QRMInstallInstruction.h"
#include "QRMLUCategory.h"
#include "QRMName.h"
#include "QRMRevisionHistory.h"

#include "QRMBrand.h"
#include "QRMModel.h"
#include "QRMOperatingSystem.h"
#include "QRMSupportedOperatingSystems.h"
#include "QRMSupportedSystems.h"

#include "QRMDependency.h"
#include "QRMDevice.h"
#include "QRMDeviceApplicability.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "QRMRollbackInformation.h"
#include "QRMSoftDependency.h"
#include "QRMSubComponent.h"

#include "QRMBundleContent.h"
#include "QRMFMPWrapperInformation.h"
#include "QRMInventoryComponent.h"
#include "QRMSoftwareBundle.h"
#include "QRMSoftwareComponent.h"

#include "QRMIApplication.h"
#include "QRMIDevice.h"
#include "QRMISystem.h"

#include "QRMKitAPI.h"
#include "QRMKitVersion.h"

#endif

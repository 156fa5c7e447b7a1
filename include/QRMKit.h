// QRMKit: everything a caller needs, in one include.
#ifndef QRMKIT_H
#define QRMKIT_H

#include "VELFile.h"
#include "VELGUID.h"
#include "VELString.h"
#include "VELTime.h"
#include "VELXML.h"

#include "QRMKitTypes.h"

#include "QRMDisplay.h"
#include "QRMName.h"
#include "QRMRevisionHistory.h"
#include "QRMCategory.h"
#include "QRMLUCategory.h"
#include "QRMImportantInfo.h"
#include "QRMInstallInstruction.h"
#include "QRMComponentType.h"
#include "QRMCriticality.h"

#include "QRMOperatingSystem.h"
#include "QRMSupportedOperatingSystems.h"
#include "QRMModel.h"
#include "QRMBrand.h"
#include "QRMSupportedSystems.h"

#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "QRMSubComponent.h"
#include "QRMDependency.h"
#include "QRMSoftDependency.h"
#include "QRMDeviceApplicability.h"
#include "QRMRollbackInformation.h"
#include "QRMDevice.h"

#include "QRMFMPWrapperInformation.h"
#include "QRMSoftwareComponent.h"
#include "QRMBundleContent.h"
#include "QRMSoftwareBundle.h"
#include "QRMInventoryComponent.h"

#include "QRMIApplication.h"
#include "QRMIDevice.h"
#include "QRMISystem.h"

#include "QRMKitAPI.h"
#include "QRMKitVersion.h"

#endif

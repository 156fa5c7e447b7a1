// The descriptive value classes: a code, a URL, a command or an enumerated
// value (or nothing) beside the texts.
#include "QRMCategory.h"
#include "QRMComponentType.h"
#include "QRMCriticality.h"
#include "QRMImportantInfo.h"
#include "QRMInstallInstruction.h"
#include "QRMLUCategory.h"
#include "QRMName.h"
#include "QRMRevisionHistory.h"
#include "QRMSubComponent.h"

#include "model/QRMDisplayValues.h"
#include "model/QRMStore.h"

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMName, mTexts)
void QRMName::GetDisplayValues(std::vector<QRMDisplay*>& out) const { mTexts.AppendPointersTo(out); }
bool QRMName::operator==(const QRMName& other) const { return mTexts.Same(other.mTexts); }
bool QRMName::operator!=(const QRMName& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMRevisionHistory, mTexts)
bool QRMRevisionHistory::operator==(const QRMRevisionHistory& other) const { return mTexts.Same(other.mTexts); }
bool QRMRevisionHistory::operator!=(const QRMRevisionHistory& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMCategory, mTexts)
VELString QRMCategory::GetCode() const { return mCode; }
QRMKitReturnCode QRMCategory::SetCode(VELString code) { return qrm::Store(mCode, std::move(code)); }
bool QRMCategory::operator==(const QRMCategory& other) const
{
    return mCode == other.mCode && mTexts.Same(other.mTexts);
}
bool QRMCategory::operator!=(const QRMCategory& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMLUCategory, mTexts)
VELString QRMLUCategory::GetCode() const { return mCode; }
QRMKitReturnCode QRMLUCategory::SetCode(VELString code) { return qrm::Store(mCode, std::move(code)); }
bool QRMLUCategory::operator==(const QRMLUCategory& other) const
{
    return mCode == other.mCode && mTexts.Same(other.mTexts);
}
bool QRMLUCategory::operator!=(const QRMLUCategory& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMImportantInfo, mTexts)
VELString QRMImportantInfo::GetURL() const { return mURL; }
QRMKitReturnCode QRMImportantInfo::SetURL(VELString url) { return qrm::Store(mURL, std::move(url)); }
bool QRMImportantInfo::operator==(const QRMImportantInfo& other) const
{
    return mURL == other.mURL && mTexts.Same(other.mTexts);
}
bool QRMImportantInfo::operator!=(const QRMImportantInfo& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMInstallInstruction, mTexts)
VELString QRMInstallInstruction::GetCommand() const { return mCommand; }
QRMKitReturnCode QRMInstallInstruction::SetCommand(VELString command)
{
    return qrm::Store(mCommand, std::move(command));
}
VELString QRMInstallInstruction::GetArguments() const { return mArguments; }
QRMKitReturnCode QRMInstallInstruction::SetArguments(VELString arguments)
{
    return qrm::Store(mArguments, std::move(arguments));
}
bool QRMInstallInstruction::operator==(const QRMInstallInstruction& other) const
{
    return mCommand == other.mCommand && mArguments == other.mArguments && mTexts.Same(other.mTexts);
}
bool QRMInstallInstruction::operator!=(const QRMInstallInstruction& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMSubComponent, mTexts)
VELString QRMSubComponent::GetName() const { return mName; }
QRMKitReturnCode QRMSubComponent::SetName(VELString name) { return qrm::Store(mName, std::move(name)); }
VELString QRMSubComponent::GetVersion() const { return mVersion; }
QRMKitReturnCode QRMSubComponent::SetVersion(VELString version) { return qrm::Store(mVersion, std::move(version)); }
bool QRMSubComponent::operator==(const QRMSubComponent& other) const
{
    return mName == other.mName && mVersion == other.mVersion && mTexts.Same(other.mTexts);
}
bool QRMSubComponent::operator!=(const QRMSubComponent& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMComponentType, mTexts)
QRMComponentTypeValueEnum QRMComponentType::GetValue() const { return mValue; }
QRMKitReturnCode QRMComponentType::SetValue(QRMComponentTypeValueEnum value) { return qrm::Store(mValue, value); }
bool QRMComponentType::operator==(const QRMComponentType& other) const
{
    return mValue == other.mValue && mTexts.Same(other.mTexts);
}
bool QRMComponentType::operator!=(const QRMComponentType& other) const { return !(*this == other); }

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMCriticality, mTexts)
QRMCriticalityValueEnum QRMCriticality::GetValue() const { return mValue; }
QRMKitReturnCode QRMCriticality::SetValue(QRMCriticalityValueEnum value) { return qrm::Store(mValue, value); }
bool QRMCriticality::operator==(const QRMCriticality& other) const
{
    return mValue == other.mValue && mTexts.Same(other.mTexts);
}
bool QRMCriticality::operator!=(const QRMCriticality& other) const { return !(*this == other); }

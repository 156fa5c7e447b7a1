// QRMModel: one computer model of a brand ("Model" element), identified by
// its system id.
#ifndef QRMKIT_MODEL_H
#define QRMKIT_MODEL_H

#include "QRMDisplay.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMBrand;

class QRMKIT_API QRMModel {
public:
    QRMModel();
    QRMModel(const QRMModel& other);
    QRMModel& operator=(const QRMModel& other);
    QRMModel(QRMModel&& other);
    QRMModel& operator=(QRMModel&& other);
    ~QRMModel();

    unsigned int GetSystemID() const;
    QRMKitReturnCode SetSystemID(unsigned int systemID);
    // Compared by brands, filled by no reader.
    unsigned int GetSecondID() const;
    QRMKitReturnCode SetSecondID(unsigned int secondID);
    // Copied, never compared, filled by no reader.
    unsigned int GetThirdID() const;
    QRMKitReturnCode SetThirdID(unsigned int thirdID);

    // Brands nested in the model (no reader fills them): QRM_KIT_ALREADY_EXISTS
    // when an equal brand is held, else a copy is appended.
    QRMKitReturnCode AddSubBrand(QRMBrand brand);
    // Appends the held brands themselves, in order; `out` is not cleared.
    void GetSubBrands(std::vector<QRMBrand*>& out) const;

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // A model has no equality of its own: brands match their models by
    // identity (see QRMBrand::operator==).

private:
    qrm::detail::DisplayTexts mTexts;
    unsigned int mSystemID;
    unsigned int mSecondID;
    unsigned int mThirdID;
    qrm::detail::OwnedList<QRMBrand> mSubBrands;
};

#endif

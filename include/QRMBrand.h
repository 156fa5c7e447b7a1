// QRMBrand: a brand of computers ("Brand" element) with its models.
#ifndef QRMKIT_BRAND_H
#define QRMKIT_BRAND_H

#include "QRMDisplay.h"
#include "QRMModel.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMBrand {
public:
    QRMBrand();
    QRMBrand(const QRMBrand& other);
    QRMBrand& operator=(const QRMBrand& other);
    QRMBrand(QRMBrand&& other);
    QRMBrand& operator=(QRMBrand&& other);
    ~QRMBrand();

    unsigned int GetKey() const;
    // Stores the decimal integer value of the text.
    QRMKitReturnCode SetKey(VELString key);
    VELString GetPrefix() const;
    QRMKitReturnCode SetPrefix(VELString prefix);

    // Appends a copy of the model.
    QRMKitReturnCode AddModel(QRMModel model);
    // Appends the held models themselves, in order; `out` is not cleared.
    void GetModels(std::vector<QRMModel*>& out) const;

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Key, prefix, the texts by the language-matching rule, equal numbers of
    // models; then every pair of models (one from each side) that share
    // system id and second id must be the very same object. So a brand is
    // unequal to its own copy as soon as it holds a model. Kept for
    // compatibility: models are matched by identity.
    bool operator==(const QRMBrand& other) const;
    bool operator!=(const QRMBrand& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    unsigned int mKey;
    VELString mPrefix;
    qrm::detail::OwnedList<QRMModel> mModels;
};

#endif

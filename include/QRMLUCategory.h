// QRMLUCategory: a component's second category code with its texts; the same
// shape and behaviour as QRMCategory.
#ifndef QRMKIT_LU_CATEGORY_H
#define QRMKIT_LU_CATEGORY_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMLUCategory : public QRMTextsDisplayList<QRMLUCategory, 1> {
public:
    VELString GetCode() const { return GetText(0); }
    QRMKitReturnCode SetCode(VELString code) { return SetText(0, std::move(code)); }
};

#endif

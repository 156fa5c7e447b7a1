// QRMCategory: a component's category code ("BI", "SF2") with its texts.
#ifndef QRMKIT_CATEGORY_H
#define QRMKIT_CATEGORY_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMCategory : public QRMTextsDisplayList<QRMCategory, 1> {
public:
    VELString GetCode() const { return GetText(0); }
    QRMKitReturnCode SetCode(VELString code) { return SetText(0, std::move(code)); }
};

#endif

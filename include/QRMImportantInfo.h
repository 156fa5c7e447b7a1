// QRMImportantInfo: where a catalog entry's important notes are published
// (attribute "URL" of "ImportantInfo"), with its texts.
#ifndef QRMKIT_IMPORTANT_INFO_H
#define QRMKIT_IMPORTANT_INFO_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMImportantInfo : public QRMTextsDisplayList<QRMImportantInfo, 1> {
public:
    VELString GetURL() const { return GetText(0); }
    QRMKitReturnCode SetURL(VELString url) { return SetText(0, std::move(url)); }
};

#endif

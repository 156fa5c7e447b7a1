// QRMPnPInfo: one plug-and-play identity: an optional four-byte primary id,
// an optional three-byte secondary id, and a four-byte value. No reader
// fills it; callers may.
#ifndef QRMKIT_PNP_INFO_H
#define QRMKIT_PNP_INFO_H

#include "QRMKitTypes.h"

#include <array>
#include <memory>

class QRMKIT_API QRMPnPInfo {
public:
    typedef std::array<unsigned char, 4> Primary;
    typedef std::array<unsigned char, 3> Secondary;
    typedef std::array<unsigned char, 4> Value;

    QRMPnPInfo();
    QRMPnPInfo(const QRMPnPInfo& other);
    QRMPnPInfo& operator=(const QRMPnPInfo& other);
    ~QRMPnPInfo();

    bool HasPrimary() const;
    // All zero when absent.
    Primary GetPrimary() const;
    QRMKitReturnCode SetPrimary(const Primary& primary);
    QRMKitReturnCode ClearPrimary();
    bool HasSecondary() const;
    Secondary GetSecondary() const;
    QRMKitReturnCode SetSecondary(const Secondary& secondary);
    QRMKitReturnCode ClearSecondary();
    Value GetValue() const;
    QRMKitReturnCode SetValue(const Value& value);

    // Each optional part present on both sides with equal bytes, or absent
    // on both; then the value bytes equal.
    bool operator==(const QRMPnPInfo& other) const;
    bool operator!=(const QRMPnPInfo& other) const;

private:
    std::unique_ptr<Primary> mPrimary;
    std::unique_ptr<Secondary> mSecondary;
    Value mValue;
};

#endif

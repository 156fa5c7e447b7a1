// VELGUID: a 128-bit identifier. The default value is the nil GUID.
#ifndef VEL_GUID_H
#define VEL_GUID_H

#include "QRMKitExport.h"

#include <array>

class VEL_API VELGUID {
public:
    typedef std::array<unsigned char, 16> Bytes;

    VELGUID();
    explicit VELGUID(const Bytes& bytes);
    VELGUID(const VELGUID& other);
    VELGUID& operator=(const VELGUID& other);
    ~VELGUID();

    const Bytes& GetBytes() const;
    bool IsNil() const;

    bool operator==(const VELGUID& other) const;
    bool operator!=(const VELGUID& other) const;

private:
    Bytes mBytes;
};

#endif

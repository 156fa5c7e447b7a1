// VELTime: a point in time as an unsigned 64-bit count (the catalog's and
// inventory's time attributes are decimal counts; their unit is theirs).
// The default value is 0.
#ifndef VEL_TIME_H
#define VEL_TIME_H

#include "QRMKitExport.h"

class VEL_API VELTime {
public:
    VELTime();
    explicit VELTime(unsigned long long value);
    VELTime(const VELTime& other);
    VELTime& operator=(const VELTime& other);
    ~VELTime();

    unsigned long long GetValue() const;

    bool operator==(const VELTime& other) const;
    bool operator!=(const VELTime& other) const;

private:
    unsigned long long mValue;
};

#endif

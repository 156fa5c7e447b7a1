#include "VELTime.h"

VELTime::VELTime() : mValue(0) {}
VELTime::VELTime(unsigned long long value) : mValue(value) {}
VELTime::VELTime(const VELTime& other) = default;
VELTime& VELTime::operator=(const VELTime& other) = default;
VELTime::~VELTime() = default;

unsigned long long VELTime::GetValue() const { return mValue; }

bool VELTime::operator==(const VELTime& other) const { return mValue == other.mValue; }
bool VELTime::operator!=(const VELTime& other) const { return mValue != other.mValue; }

#include "VELGUID.h"

VELGUID::VELGUID() : mBytes{} {}
VELGUID::VELGUID(const Bytes& bytes) : mBytes(bytes) {}
VELGUID::VELGUID(const VELGUID& other) = default;
VELGUID& VELGUID::operator=(const VELGUID& other) = default;
VELGUID::~VELGUID() = default;

const VELGUID::Bytes& VELGUID::GetBytes() const { return mBytes; }

bool VELGUID::IsNil() const { return mBytes == Bytes{}; }

bool VELGUID::operator==(const VELGUID& other) const { return mBytes == other.mBytes; }
bool VELGUID::operator!=(const VELGUID& other) const { return mBytes != other.mBytes; }

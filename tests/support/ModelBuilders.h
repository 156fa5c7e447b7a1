// Small values the unit tests of the model classes build again and again:
// texts as UTF-8, GUIDs, PCI and plug-and-play records, models and brands.
#ifndef QRMKIT_TEST_MODEL_BUILDERS_H
#define QRMKIT_TEST_MODEL_BUILDERS_H

#include <QRMKit.h>

#include <string>

namespace builders {

// The text as UTF-8.
inline std::string U8(const VELString& text) { return text.GetUTF8String(); }

// A GUID whose bytes count up from `seed`.
inline VELGUID MakeGUID(unsigned char seed)
{
    VELGUID::Bytes bytes{};
    for (unsigned int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(seed + i);
    }
    return VELGUID(bytes);
}

inline QRMPCIInfo MakePCI(unsigned int vendorID, unsigned int deviceID, unsigned int subVendorID,
                          unsigned int subDeviceID)
{
    QRMPCIInfo pci;
    pci.SetVendorID(vendorID);
    pci.SetDeviceID(deviceID);
    pci.SetSubVendorID(subVendorID);
    pci.SetSubDeviceID(subDeviceID);
    return pci;
}

// A plug-and-play record with all three parts, each carrying `seed`.
inline QRMPnPInfo MakePnP(unsigned char seed)
{
    QRMPnPInfo pnp;
    pnp.SetPrimary(QRMPnPInfo::Primary{{seed, 1, 2, 3}});
    pnp.SetSecondary(QRMPnPInfo::Secondary{{4, 5, seed}});
    pnp.SetValue(QRMPnPInfo::Value{{6, seed, 7, 8}});
    return pnp;
}

inline QRMModel MakeModel(unsigned int systemID, unsigned int secondID = 0)
{
    QRMModel model;
    model.SetSystemID(systemID);
    model.SetSecondID(secondID);
    return model;
}

inline QRMBrand MakeBrand(const char* key, const char* prefix)
{
    QRMBrand brand;
    brand.SetKey(key);
    brand.SetPrefix(prefix);
    return brand;
}

}  // namespace builders

#endif

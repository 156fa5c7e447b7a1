// `qrmkit explain`: for every installed application of every inventory
// device, whether a catalog package updates it and, when none does, the
// first reason why not, as the matching rule of GetApplicableUpdates sees
// it. Computed from the library's public data; an application is "update"
// here exactly when GetApplicableUpdates gives it a package, and it is the
// same package.
#ifndef QRMKIT_REPORT_EXPLAIN_H
#define QRMKIT_REPORT_EXPLAIN_H

#include "Reports.h"

#include <array>
#include <string>

namespace qrmtool {

// The outcomes, in the order they are tried: the first that applies is
// the application's.
//   update                 a package updates it (which, and how it matched)
//   device-excluded        the device's component id never receives updates
//   no-bundle              no bundle of the requested type lists the system
//   no-supporting-package  no catalog package supports the device at all
//   not-in-bundle          packages support the device, none is in the bundle
//   type-mismatch          none of those has the application's component type
//   sub-id-mismatch        vendor and device match, no entry has the
//                          device's sub-ids or 0/0
constexpr std::array<const char*, 7> kOutcomes = {
    "update",        "device-excluded", "no-bundle",      "no-supporting-package",
    "not-in-bundle", "type-mismatch",   "sub-id-mismatch"};

// `bundleType` is "auto" or a bundle type text.
Json CollectExplanation(const std::string& catalog, const std::string& inventory, const std::string& bundleType);

}  // namespace qrmtool

#endif

// The display-value operations every text-carrying class offers, defined
// once: each class's AddDisplayValue, RemoveDisplayValue and
// GetDisplayValues hand over to its qrm::detail::DisplayTexts member.
#ifndef QRMKIT_MODEL_DISPLAY_VALUES_H
#define QRMKIT_MODEL_DISPLAY_VALUES_H

#include "detail/QRMDisplayTexts.h"

#include <utility>
#include <vector>

#define QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(Holder, texts)                                                          \
    QRMKitReturnCode Holder::AddDisplayValue(VELString language, VELString value)                                      \
    {                                                                                                                  \
        return texts.Add(std::move(language), std::move(value));                                                       \
    }                                                                                                                  \
    QRMKitReturnCode Holder::RemoveDisplayValue(const VELString& language) { return texts.Remove(language); }          \
    void Holder::GetDisplayValues(std::vector<QRMDisplay>& out) const { texts.AppendCopiesTo(out); }

#endif

#include "detail/QRMDisplayTexts.h"

#include <memory>

namespace qrm::detail {

namespace {

// For every text on the left, every text on the right with the same language
// carries the same value.
bool AgreeFromLeft(const OwnedList<QRMDisplay>& left, const OwnedList<QRMDisplay>& right)
{
    for (const QRMDisplay* a : left) {
        const VELString& language = a->GetLanguage();
        for (const QRMDisplay* b : right) {
            if (b->GetLanguage() == language && b->GetValue() != a->GetValue()) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

QRMKitReturnCode DisplayTexts::Add(VELString language, VELString value)
{
    auto sameLanguage = [&language](const QRMDisplay& entry) { return entry.GetLanguage() == language; };
    if (mEntries.IndexOf(sameLanguage) < mEntries.Size()) {
        return QRM_KIT_ALREADY_EXISTS;
    }
    mEntries.Append(std::unique_ptr<QRMDisplay>(new QRMDisplay(std::move(language), std::move(value))));
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode DisplayTexts::Remove(const VELString& language)
{
    return mEntries.RemoveClosingUp([&language](const QRMDisplay& entry) { return entry.GetLanguage() == language; });
}

void DisplayTexts::AppendCopiesTo(std::vector<QRMDisplay>& out) const { mEntries.AppendCopiesTo(out); }

void DisplayTexts::AppendPointersTo(std::vector<QRMDisplay*>& out) const { mEntries.AppendPointersTo(out); }

bool DisplayTexts::Same(const DisplayTexts& other) const
{
    return mEntries.Size() == other.mEntries.Size() && Agree(other);
}

bool DisplayTexts::Agree(const DisplayTexts& other) const
{
    return AgreeFromLeft(mEntries, other.mEntries) && AgreeFromLeft(other.mEntries, mEntries);
}

bool DisplayTexts::AllPairsEqual(const DisplayTexts& other) const { return mEntries.AllPairsEqual(other.mEntries); }

}  // namespace qrm::detail

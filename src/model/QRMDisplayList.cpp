#include "QRMDisplayList.h"

#include <memory>

namespace {

// For every text on the left, every text on the right with the same language
// carries the same value.
bool AgreeFromLeft(const QRMOwnedList<QRMDisplay>& left, const QRMOwnedList<QRMDisplay>& right)
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

QRMDisplayList::QRMDisplayList() = default;
QRMDisplayList::QRMDisplayList(const QRMDisplayList& other) = default;
QRMDisplayList& QRMDisplayList::operator=(const QRMDisplayList& other) = default;
QRMDisplayList::QRMDisplayList(QRMDisplayList&& other) = default;
QRMDisplayList& QRMDisplayList::operator=(QRMDisplayList&& other) = default;
QRMDisplayList::~QRMDisplayList() = default;

QRMKitReturnCode QRMDisplayList::AddDisplayValue(VELString language, VELString value)
{
    auto sameLanguage = [&language](const QRMDisplay& entry) {
        return entry.GetLanguage() == language;
    };
    if (mDisplayValues.IndexOf(sameLanguage) < mDisplayValues.Size()) {
        return QRM_KIT_ALREADY_EXISTS;
    }
    mDisplayValues.Append(std::unique_ptr<QRMDisplay>(new QRMDisplay(std::move(language), std::move(value))));
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMDisplayList::RemoveDisplayValue(const VELString& language)
{
    return mDisplayValues.RemoveClosingUp(
        [&language](const QRMDisplay& entry) { return entry.GetLanguage() == language; });
}

void QRMDisplayList::GetDisplayValues(std::vector<QRMDisplay>& out) const
{
    mDisplayValues.AppendCopiesTo(out);
}

std::size_t QRMDisplayList::GetDisplayValueCount() const { return mDisplayValues.Size(); }

bool QRMDisplayList::operator==(const QRMDisplayList& other) const { return HasSameTexts(other); }

bool QRMDisplayList::operator!=(const QRMDisplayList& other) const { return !HasSameTexts(other); }

bool QRMDisplayList::HasSameTexts(const QRMDisplayList& other) const
{
    return mDisplayValues.Size() == other.mDisplayValues.Size() && TextsAgree(other);
}

bool QRMDisplayList::TextsAgree(const QRMDisplayList& other) const
{
    return AgreeFromLeft(mDisplayValues, other.mDisplayValues) &&
           AgreeFromLeft(other.mDisplayValues, mDisplayValues);
}

bool QRMDisplayList::HasAllPairsEqualTexts(const QRMDisplayList& other) const
{
    return mDisplayValues.AllPairsEqual(other.mDisplayValues);
}

void QRMDisplayList::AppendDisplayPointers(std::vector<QRMDisplay*>& out) const
{
    mDisplayValues.AppendPointersTo(out);
}

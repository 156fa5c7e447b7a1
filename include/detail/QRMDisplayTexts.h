// Internal to the library: not part of its contract, may change in any
// version. Do not include this header directly.
//
// DisplayTexts: the localised texts of one object, one per language, in the
// order they were added. Every class that carries texts holds one and
// offers AddDisplayValue, RemoveDisplayValue and GetDisplayValues on it, so
// adding, removing, copying and comparing texts follow one rule.
#ifndef QRMKIT_DETAIL_DISPLAY_TEXTS_H
#define QRMKIT_DETAIL_DISPLAY_TEXTS_H

#include "../QRMDisplay.h"
#include "../QRMKitTypes.h"
#include "../VELString.h"
#include "QRMOwnedList.h"

#include <cstddef>
#include <vector>

namespace qrm::detail {

// Copies are deep, in order; assigning texts to themselves empties them.
class DisplayTexts {
public:
    // QRM_KIT_ALREADY_EXISTS when a text for that language is held (the held
    // text is never replaced); otherwise appends and returns QRM_KIT_SUCCESS.
    QRMKitReturnCode Add(VELString language, VELString value);
    // QRM_KIT_NOT_FOUND when no text has that language. Otherwise the entry
    // is taken out and the list closes up; when it was not the last entry,
    // the entry that followed it is cleared (it then reads language "" and
    // value "") and stays in the list. Kept for compatibility: this is how
    // removal has always behaved, and callers observe it.
    QRMKitReturnCode Remove(const VELString& language);
    // Appends a copy of every text, in order; `out` is not cleared.
    void AppendCopiesTo(std::vector<QRMDisplay>& out) const;
    // Appends the held objects themselves, in order, for the holders that
    // hand them out.
    void AppendPointersTo(std::vector<QRMDisplay*>& out) const;

    std::size_t Size() const { return mEntries.Size(); }

    // The language-matching rule: same number of texts, and wherever a
    // language occurs on both sides the texts agree. Languages found on one
    // side only do not matter, nor does order.
    bool Same(const DisplayTexts& other) const;
    // The same without comparing the number of texts.
    bool Agree(const DisplayTexts& other) const;
    // The all-pairs rule over whole texts (language and value).
    bool AllPairsEqual(const DisplayTexts& other) const;

private:
    OwnedList<QRMDisplay> mEntries;
};

}  // namespace qrm::detail

#endif

// QRMDisplayList: the localised texts of one object, one per language, in
// the order they were added. Every class that carries texts is one (or holds
// one), so adding, removing, copying and comparing texts follow one rule.
#ifndef QRMKIT_DISPLAY_LIST_H
#define QRMKIT_DISPLAY_LIST_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "QRMOwnedList.h"
#include "VELString.h"

#include <array>
#include <cstddef>
#include <vector>

class QRMKIT_API QRMDisplayList {
public:
    QRMDisplayList();
    // Deep copies, in order. Assigning a list to itself empties it.
    QRMDisplayList(const QRMDisplayList& other);
    QRMDisplayList& operator=(const QRMDisplayList& other);
    QRMDisplayList(QRMDisplayList&& other);
    QRMDisplayList& operator=(QRMDisplayList&& other);
    ~QRMDisplayList();

    // QRM_KIT_ALREADY_EXISTS when a text for that language is held (the held
    // text is never replaced); otherwise appends and returns QRM_KIT_SUCCESS.
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    // QRM_KIT_NOT_FOUND when no text has that language. Otherwise the entry
    // is taken out and the list closes up; when it was not the last entry,
    // the entry that followed it is cleared (it then reads language "" and
    // value "") and stays in the list. Kept for compatibility: this is how
    // removal has always behaved, and callers observe it.
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    // Appends a copy of every text, in order; `out` is not cleared.
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    std::size_t GetDisplayValueCount() const;

    // Equal under the language-matching rule (HasSameTexts).
    bool operator==(const QRMDisplayList& other) const;
    bool operator!=(const QRMDisplayList& other) const;

    // The language-matching rule: same number of texts, and wherever a
    // language occurs on both sides the texts agree. Languages found on one
    // side only do not matter, nor does order.
    bool HasSameTexts(const QRMDisplayList& other) const;
    // The same without comparing the number of texts.
    bool TextsAgree(const QRMDisplayList& other) const;
    // The all-pairs rule over whole texts (language and value).
    bool HasAllPairsEqualTexts(const QRMDisplayList& other) const;

protected:
    // The held objects themselves, for the holders that hand them out.
    void AppendDisplayPointers(std::vector<QRMDisplay*>& out) const;

private:
    QRMOwnedList<QRMDisplay> mDisplayValues;
};

// A display list with a fixed number of texts besides it (a code, a URL, a
// command and its arguments), compared text by text in order and then by
// the language-matching rule.
template <class Self, std::size_t Count>
class QRMTextsDisplayList : public QRMDisplayList {
public:
    bool operator==(const Self& other) const
    {
        for (std::size_t i = 0; i < Count; ++i) {
            if (mTexts[i] != other.mTexts[i]) {
                return false;
            }
        }
        return HasSameTexts(other);
    }
    bool operator!=(const Self& other) const { return !(*this == other); }

protected:
    VELString GetText(std::size_t index) const { return mTexts[index]; }
    QRMKitReturnCode SetText(std::size_t index, VELString text)
    {
        mTexts[index] = text;
        return QRM_KIT_SUCCESS;
    }

private:
    std::array<VELString, Count> mTexts;
};

// A display list with one enumerated value besides it (0 when new), compared
// value first and then by the language-matching rule. Values are stored
// without a range check.
template <class Self, class Enum>
class QRMValuedDisplayList : public QRMDisplayList {
public:
    Enum GetValue() const { return mValue; }
    QRMKitReturnCode SetValue(Enum value)
    {
        mValue = value;
        return QRM_KIT_SUCCESS;
    }
    bool operator==(const Self& other) const { return mValue == other.mValue && HasSameTexts(other); }
    bool operator!=(const Self& other) const { return !(*this == other); }

private:
    Enum mValue = static_cast<Enum>(0);
};

#endif

// QRMDisplay: one localised text, a language tag ("en", "zh-Hans") and the
// text in that language.
//
// The display-text rule. Every class that carries texts holds them in the
// order they were added, at most one per language, and offers:
// - AddDisplayValue(language, value): QRM_KIT_ALREADY_EXISTS when a text for
//   that language is held (the held text is never replaced); otherwise
//   appends and returns QRM_KIT_SUCCESS.
// - RemoveDisplayValue(language): QRM_KIT_NOT_FOUND when no text has that
//   language. Otherwise the entry is taken out and the list closes up; when
//   it was not the last entry, the entry that followed it is cleared (it
//   then reads language "" and value "") and stays in the list. Kept for
//   compatibility: this is how removal has always behaved, and callers
//   observe it.
// - GetDisplayValues(out): appends a copy of every text, in order; `out` is
//   not cleared.
// Copies of a holder copy its texts in order; assigning a holder to itself
// empties its texts. Equality compares the texts by the language-matching
// rule unless the class says otherwise: the same number of texts, and
// wherever a language occurs on both sides the texts agree (languages found
// on one side only do not matter, nor does order).
#ifndef QRMKIT_DISPLAY_H
#define QRMKIT_DISPLAY_H

#include "QRMKitTypes.h"
#include "VELString.h"

class QRMKIT_API QRMDisplay {
public:
    QRMDisplay();
    QRMDisplay(VELString language, VELString value);
    QRMDisplay(const QRMDisplay& other);
    QRMDisplay& operator=(const QRMDisplay& other);
    QRMDisplay(QRMDisplay&& other);
    QRMDisplay& operator=(QRMDisplay&& other);
    ~QRMDisplay();

    VELString GetLanguage() const;
    VELString GetValue() const;
    QRMKitReturnCode SetLanguage(VELString language);
    QRMKitReturnCode SetValue(VELString value);

    // Both texts equal, exactly.
    bool operator==(const QRMDisplay& other) const;
    bool operator!=(const QRMDisplay& other) const;

private:
    VELString mLanguage;
    VELString mValue;
};

#endif

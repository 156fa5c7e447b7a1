// Category values and the short acronyms derived from them.
#include "QRMKitAPI.h"

#include "api/QRMManifest.h"
#include "base/VELCombinations.h"

#include <unordered_set>

namespace {

// Plain ASCII upper case: a to z become A to Z, nothing else changes.
VELString ToUpper(const VELString& text)
{
    std::u16string units = text.GetUTF16String();
    for (char16_t& unit : units) {
        if (unit >= u'a' && unit <= u'z') {
            unit = static_cast<char16_t>(unit - u'a' + u'A');
        }
    }
    return VELString(std::move(units));
}

bool IsLetter(char16_t unit) { return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'); }

typedef std::unordered_set<std::u16string> TextSet;

// The letters an acronym is made from: the code's consonants, upper-cased;
// a code without any gets every consonant.
std::u16string AcronymBase(const VELString& code)
{
    const VELString consonants = ToUpper(code.RemoveVowels());
    std::u16string base;
    for (char16_t unit : consonants.GetUTF16View()) {
        if (IsLetter(unit)) {
            base.push_back(unit);
        }
    }
    if (base.empty()) {
        base = u"BCDFGHJKLMNPQRSTVWXYZ";
    }
    return base;
}

// The first selection of two, then three, letters of `base` (in position
// order, first position slowest) that is neither used nor equal to a
// category text; the whole base, unchecked, when every selection is taken.
std::u16string FirstFreeAcronym(const std::u16string& base, const TextSet& used, const TextSet& upperTexts)
{
    for (std::size_t length = 2; length < 4; ++length) {
        vel::CombinationCursor cursor(0, base.size() - 1, length);
        std::u16string candidate(length, u'\0');
        while (cursor.Next()) {
            for (std::size_t i = 0; i < length; ++i) {
                candidate[i] = base[cursor.Positions()[i]];
            }
            if (used.count(candidate) == 0 && upperTexts.count(candidate) == 0) {
                return candidate;
            }
        }
    }
    return base;
}

}  // namespace

void QRMKitAPI::GetCategoryValues(std::map<VELString, VELString>& values) const
{
    mCatalogManifest.GetCategoryValueMap(values);
}

void QRMKitAPI::SetAcronymForCategoryValues()
{
    QRMManifest::TextMap categories;
    mCatalogManifest.GetCategoryValueMap(categories);
    TextSet used;
    TextSet upperTexts;
    std::vector<const QRMManifest::TextMap::value_type*> generated;

    // A code of one to four letters is its own acronym, kept as written.
    for (const auto& category : categories) {
        upperTexts.insert(ToUpper(category.second).GetUTF16String());
        const VELString& code = category.first;
        if (code.ContainsOnlyAlphabets() && code.GetLength() <= 4) {
            used.insert(ToUpper(code).GetUTF16String());
            mCatalogManifest.AddCategoryAcronym(code, category.second);
        } else {
            generated.push_back(&category);
        }
    }
    for (const auto* category : generated) {
        std::u16string acronym = FirstFreeAcronym(AcronymBase(category->first), used, upperTexts);
        used.insert(acronym);
        mCatalogManifest.AddCategoryAcronym(VELString(std::move(acronym)), category->second);
    }
}

void QRMKitAPI::GetAcronymForCategoryValues(std::map<VELString, VELString>& acronyms)
{
    SetAcronymForCategoryValues();
    mCatalogManifest.GetCategoryAcronymMap(acronyms);
}

void QRMKitAPI::ListCatalogAndRVUGeneratedCategoryValues(std::map<VELString, std::vector<VELString>>& list)
{
    QRMManifest::TextMap categories;
    mCatalogManifest.GetCategoryValueMap(categories);
    SetAcronymForCategoryValues();
    QRMManifest::TextMap acronyms;
    mCatalogManifest.GetCategoryAcronymMap(acronyms);
    for (const auto& category : categories) {
        std::vector<VELString>& entry = list[category.second];
        entry.push_back(category.first);
        for (const auto& acronym : acronyms) {
            if (acronym.second == category.second && acronym.first != category.first) {
                entry.push_back(acronym.first);
                break;
            }
        }
    }
}

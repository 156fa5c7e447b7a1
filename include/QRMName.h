// QRMName: the localised names of a catalog entry.
#ifndef QRMKIT_NAME_H
#define QRMKIT_NAME_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMName : public QRMDisplayList {
public:
    using QRMDisplayList::GetDisplayValues;
    // Appends the held objects themselves, in order, without clearing `out`.
    // The caller may read them but must not delete them; they become invalid
    // when the name is destroyed, assigned to, or has a text removed.
    void GetDisplayValues(std::vector<QRMDisplay*>& out) const;
};

#endif

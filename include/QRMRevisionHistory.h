// QRMRevisionHistory: the localised revision notes of a catalog entry.
#ifndef QRMKIT_REVISION_HISTORY_H
#define QRMKIT_REVISION_HISTORY_H

#include "QRMDisplayList.h"

class QRMKIT_API QRMRevisionHistory : public QRMDisplayList {
};

#endif

// QRMIInventory: the inventory store. One per process; ParseInventory adds
// to it and nothing empties it.
#ifndef QRMKIT_I_INVENTORY_H
#define QRMKIT_I_INVENTORY_H

class QRMIInventory {
public:
    QRMIInventory() = default;
    QRMIInventory(const QRMIInventory&) = delete;
    QRMIInventory& operator=(const QRMIInventory&) = delete;
};

#endif

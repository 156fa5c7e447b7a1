// QRMSeldom<T>: the members of a value class that catalogs seldom give,
// held apart and created on their first change, so that the many objects
// that never use them stay small. Reading an absent part gives a
// default-constructed T; copies are deep; assignment is member by member,
// as T's own (assigning an object to itself empties its lists).
#ifndef QRMKIT_SELDOM_H
#define QRMKIT_SELDOM_H

#include <memory>

template <class T>
class QRMSeldom {
public:
    QRMSeldom() = default;
    QRMSeldom(const QRMSeldom& other) : mPart(other.mPart ? new T(*other.mPart) : nullptr) {}
    QRMSeldom& operator=(const QRMSeldom& other)
    {
        if (other.mPart) {
            Change() = *other.mPart;
        } else {
            mPart.reset();
        }
        return *this;
    }
    QRMSeldom(QRMSeldom&& other) noexcept = default;
    QRMSeldom& operator=(QRMSeldom&& other) noexcept = default;
    ~QRMSeldom() = default;

    const T& Get() const
    {
        static const T none;
        return mPart ? *mPart : none;
    }
    T& Change()
    {
        if (!mPart) {
            mPart.reset(new T);
        }
        return *mPart;
    }

private:
    std::unique_ptr<T> mPart;
};

#endif

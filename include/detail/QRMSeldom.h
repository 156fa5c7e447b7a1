// Internal to the library: not part of its contract, may change in any
// version. Do not include this header directly.
//
// Seldom<T>: the members of a value class that catalogs seldom give,
// held apart and created on their first change, so that the many objects
// that never use them stay small. Reading an absent part gives a
// default-constructed T; copies are deep; assignment is member by member,
// as T's own (assigning an object to itself empties its lists).
#ifndef QRMKIT_DETAIL_SELDOM_H
#define QRMKIT_DETAIL_SELDOM_H

#include <memory>

namespace qrm::detail {

template <class T>
class Seldom {
public:
    Seldom() = default;
    Seldom(const Seldom& other) : mPart(other.mPart ? new T(*other.mPart) : nullptr) {}
    Seldom& operator=(const Seldom& other)
    {
        if (other.mPart) {
            Change() = *other.mPart;
        } else {
            mPart.reset();
        }
        return *this;
    }
    Seldom(Seldom&& other) noexcept = default;
    Seldom& operator=(Seldom&& other) noexcept = default;
    ~Seldom() = default;

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

}  // namespace qrm::detail

#endif

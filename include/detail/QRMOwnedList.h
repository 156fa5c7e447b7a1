// Internal to the library: not part of its contract, may change in any
// version. Do not include this header directly.
//
// OwnedList<T>: an insertion-ordered list of heap objects that the list
// owns. Every list of owned objects in the library is one of these, so the
// copy, removal and equality rules exist once.
//
// Copying is deep (new objects in source order). Assignment releases the
// target's objects first and then copies; assigning a list to itself leaves
// it empty (kept for compatibility: callers of the value classes observe it).
//
// Entries taken out of the list without being released (see
// RemoveClosingUp and Retire) stay owned by the list, out of sight, until the
// list is destroyed, cleared or assigned to, so a pointer a caller obtained
// earlier never dangles before then.
#ifndef QRMKIT_DETAIL_OWNED_LIST_H
#define QRMKIT_DETAIL_OWNED_LIST_H

#include "../QRMKitTypes.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace qrm::detail {

template <class T>
class OwnedList {
public:
    typedef T* const* const_iterator;

    OwnedList() = default;
    // Delegates first, so that the copies made before an allocation fails
    // are released by the destructor.
    OwnedList(const OwnedList& other) : OwnedList() { AppendCopiesOf(other); }
    OwnedList& operator=(const OwnedList& other)
    {
        if (this == &other) {
            Clear();
            return *this;
        }
        Clear();
        AppendCopiesOf(other);
        return *this;
    }
    // Moving hands the objects over: the same pointers, now owned by the
    // target; the source is left empty.
    OwnedList(OwnedList&& other) noexcept : mRetired(std::move(other.mRetired)) { mItems.TakeFrom(other.mItems); }
    OwnedList& operator=(OwnedList&& other) noexcept
    {
        if (this != &other) {
            Clear();
            mItems.TakeFrom(other.mItems);
            mRetired = std::move(other.mRetired);
        }
        return *this;
    }
    ~OwnedList() { Clear(); }

    std::size_t Size() const { return mItems.size(); }
    T* At(std::size_t index) const { return mItems[index]; }
    const_iterator begin() const { return mItems.begin(); }
    const_iterator end() const { return mItems.end(); }

    // Appends a heap copy of `item` and returns it.
    T* Append(const T& item)
    {
        std::unique_ptr<T> copy(new T(item));
        mItems.push_back(copy.get());
        return copy.release();
    }

    // Appends a heap object that takes over the contents of `item`.
    T* Append(T&& item)
    {
        std::unique_ptr<T> moved(new T(std::move(item)));
        mItems.push_back(moved.get());
        return moved.release();
    }

    // Appends an object built by the caller, taking it over.
    T* Append(std::unique_ptr<T> item)
    {
        mItems.push_back(item.get());
        return item.release();
    }

    // Index of the first entry for which match(entry) holds, or Size().
    template <class Match>
    std::size_t IndexOf(Match match) const
    {
        std::size_t index = 0;
        while (index < mItems.size() && !match(*mItems[index])) {
            ++index;
        }
        return index;
    }

    // Index of the first entry equal to `item` (stored == item), or Size().
    std::size_t IndexOfEqual(const T& item) const
    {
        return IndexOf([&item](const T& stored) { return stored == item; });
    }

    bool Contains(const T& item) const { return IndexOfEqual(item) < mItems.size(); }

    // QRM_KIT_ALREADY_EXISTS when a stored entry equals `item`, else appends
    // a copy of it and returns QRM_KIT_SUCCESS.
    QRMKitReturnCode AddUnique(const T& item)
    {
        if (Contains(item)) {
            return QRM_KIT_ALREADY_EXISTS;
        }
        Append(item);
        return QRM_KIT_SUCCESS;
    }

    // The same, moving `item` in when it is appended.
    QRMKitReturnCode AddUnique(T&& item)
    {
        if (Contains(item)) {
            return QRM_KIT_ALREADY_EXISTS;
        }
        Append(std::move(item));
        return QRM_KIT_SUCCESS;
    }

    // Releases the first entry equal to `item`, then closes up the list.
    QRMKitReturnCode RemoveFirst(const T& item)
    {
        std::size_t index = IndexOfEqual(item);
        if (index == mItems.size()) {
            return QRM_KIT_NOT_FOUND;
        }
        delete mItems[index];
        mItems.Erase(index);
        return QRM_KIT_SUCCESS;
    }

    // The removal order the value classes have always had: the first entry
    // for which match(entry) holds is taken out and the list closes up;
    // then the entry that now stands at that position is released. When the
    // removed entry was the last one, that is the removed entry itself.
    // Otherwise it is the entry that followed: it stays in the list but reads
    // as new (reset to its default state), and the removed entry is kept,
    // out of the list, until the list is destroyed or assigned to. Kept for
    // compatibility: callers observe the shortened list, the same pointers,
    // and the reset entry.
    template <class Match>
    QRMKitReturnCode RemoveClosingUp(Match match)
    {
        return RemoveClosingUpAt(IndexOf(match));
    }

    // The same for the first entry equal to `item`.
    QRMKitReturnCode RemoveClosingUpEqual(const T& item) { return RemoveClosingUpAt(IndexOfEqual(item)); }

    // Takes the entry at `index` out of the list without releasing it: it is
    // kept until the list is destroyed or assigned to.
    // When memory runs out it throws std::bad_alloc and changes nothing.
    void Retire(std::size_t index)
    {
        ReserveKept();
        T* removed = mItems[index];
        mItems.Erase(index);
        Keep(removed);
    }

    // Releases every entry, retired ones included.
    void Clear()
    {
        for (T* item : mItems) {
            delete item;
        }
        mItems.Clear();
        if (mRetired) {
            for (T* item : *mRetired) {
                delete item;
            }
            mRetired.reset();
        }
    }

    // Appends a copy of every entry, in order; `out` is not cleared.
    void AppendCopiesTo(std::vector<T>& out) const
    {
        out.reserve(out.size() + mItems.size());
        for (const T* item : mItems) {
            out.push_back(*item);
        }
    }

    // Appends the stored pointers, in order; `out` is not cleared.
    void AppendPointersTo(std::vector<T*>& out) const { out.insert(out.end(), mItems.begin(), mItems.end()); }

    // The all-pairs rule: equal lengths, and every entry on either side
    // equal to every entry on the other. A list of two different entries is
    // therefore unequal even to itself. Kept for compatibility: this is the
    // equality the value classes have always had for their lists.
    template <class Equal>
    bool AllPairsEqual(const OwnedList& other, Equal equal) const
    {
        if (mItems.size() != other.mItems.size()) {
            return false;
        }
        for (const T* left : mItems) {
            for (const T* right : other.mItems) {
                if (!equal(*left, *right)) {
                    return false;
                }
            }
        }
        for (const T* right : other.mItems) {
            for (const T* left : mItems) {
                if (!equal(*right, *left)) {
                    return false;
                }
            }
        }
        return true;
    }

    bool AllPairsEqual(const OwnedList& other) const
    {
        return AllPairsEqual(other, [](const T& left, const T& right) { return left == right; });
    }

private:
    QRMKitReturnCode RemoveClosingUpAt(std::size_t index)
    {
        if (index == mItems.size()) {
            return QRM_KIT_NOT_FOUND;
        }
        const bool last = index + 1 == mItems.size();
        if (!last) {
            ReserveKept();  // may throw std::bad_alloc: nothing has changed yet
        }
        T* removed = mItems[index];
        mItems.Erase(index);
        if (last) {
            delete removed;
        } else {
            Keep(removed);
            *mItems[index] = T();
        }
        return QRM_KIT_SUCCESS;
    }

    void AppendCopiesOf(const OwnedList& other)
    {
        mItems.Reserve(other.mItems.size());
        for (const T* item : other.mItems) {
            Append(*item);
        }
    }

    // Makes room to keep one more taken-out entry; throws std::bad_alloc
    // before anything is taken out.
    void ReserveKept()
    {
        if (!mRetired) {
            mRetired.reset(new std::vector<T*>);
        }
        if (mRetired->size() == mRetired->capacity()) {
            mRetired->reserve(mRetired->empty() ? 4 : 2 * mRetired->size());
        }
    }

    // Keeps a taken-out entry; ReserveKept made the room, so this cannot fail.
    void Keep(T* item) noexcept { mRetired->push_back(item); }

    // The entries' pointers. Most lists hold one entry, so the first pointer
    // has a place of its own and only longer lists take memory from the heap.
    class Slots {
    public:
        Slots() noexcept : mData(&mInline), mSize(0), mCapacity(1), mInline(nullptr) {}
        Slots(const Slots&) = delete;
        Slots& operator=(const Slots&) = delete;
        ~Slots() { ReleaseHeap(); }

        std::size_t size() const { return mSize; }
        T* operator[](std::size_t index) const { return mData[index]; }
        T* const* begin() const { return mData; }
        T* const* end() const { return mData + mSize; }

        void Reserve(std::size_t capacity)
        {
            if (capacity <= mCapacity) {
                return;
            }
            if (capacity > 0xFFFFFFFFu) {
                throw std::bad_alloc();
            }
            T** data = new T*[capacity];
            for (std::size_t i = 0; i < mSize; ++i) {
                data[i] = mData[i];
            }
            ReleaseHeap();
            mData = data;
            mCapacity = static_cast<std::uint32_t>(capacity);
        }
        void push_back(T* item)
        {
            if (mSize == mCapacity) {
                Reserve(static_cast<std::size_t>(mCapacity) * 2);
            }
            mData[mSize++] = item;
        }
        void Erase(std::size_t index)
        {
            for (std::size_t i = index + 1; i < mSize; ++i) {
                mData[i - 1] = mData[i];
            }
            --mSize;
        }
        void Clear() { mSize = 0; }
        // Takes over the pointers of `other` (this list's own are dropped,
        // not released: the caller has released them), leaving it empty.
        void TakeFrom(Slots& other) noexcept
        {
            ReleaseHeap();
            if (other.mData == &other.mInline) {
                mInline = other.mInline;
                mData = &mInline;
                mCapacity = 1;
            } else {
                mData = other.mData;
                mCapacity = other.mCapacity;
                other.mData = &other.mInline;
                other.mCapacity = 1;
            }
            mSize = other.mSize;
            other.mSize = 0;
        }

    private:
        void ReleaseHeap()
        {
            if (mData != &mInline) {
                delete[] mData;
                mData = &mInline;
                mCapacity = 1;
            }
        }

        T** mData;
        std::uint32_t mSize;
        std::uint32_t mCapacity;
        T* mInline;
    };

    Slots mItems;
    // Entries taken out but not released; created on first use.
    std::unique_ptr<std::vector<T*>> mRetired;
};

}  // namespace qrm::detail

#endif

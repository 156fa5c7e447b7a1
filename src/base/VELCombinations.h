// Walks the selections of `count` positions out of the range [first, last],
// in the order of the chosen positions with the first position changing
// slowest: for five positions and two chosen, (0,1), (0,2), (0,3), (0,4),
// (1,2), ... Each selection is produced on demand, so a caller that stops
// early never pays for the rest.
#ifndef VEL_COMBINATIONS_H
#define VEL_COMBINATIONS_H

#include <cstddef>
#include <vector>

namespace vel {

class CombinationCursor {
public:
    CombinationCursor(std::size_t first, std::size_t last, std::size_t count)
        : mFirst(first), mLast(last), mCount(count), mStarted(false)
    {}

    // Moves to the next selection (the first one on the first call); false
    // when there is none left.
    bool Next()
    {
        if (!mStarted) {
            mStarted = true;
            if (mFirst > mLast || mLast - mFirst + 1 < mCount) {
                return false;
            }
            mPositions.resize(mCount);
            for (std::size_t i = 0; i < mCount; ++i) {
                mPositions[i] = mFirst + i;
            }
            return true;
        }
        // The rightmost position that can still move right moves one place;
        // every position after it follows it closely.
        std::size_t i = mCount;
        while (i > 0) {
            --i;
            if (mPositions[i] < mLast - (mCount - 1 - i)) {
                ++mPositions[i];
                for (std::size_t j = i + 1; j < mCount; ++j) {
                    mPositions[j] = mPositions[j - 1] + 1;
                }
                return true;
            }
        }
        return false;
    }

    const std::vector<std::size_t>& Positions() const { return mPositions; }

private:
    std::size_t mFirst;
    std::size_t mLast;
    std::size_t mCount;
    bool mStarted;
    std::vector<std::size_t> mPositions;
};

}  // namespace vel

#endif

// The version the loaded library reports is the one it was built as.
#include <QRMKit.h>

#include <gtest/gtest.h>

#include <string>

TEST(LibraryVersion, IsTheVersionTheLibraryWasBuiltAs)
{
    ASSERT_NE(QRMKitVersion(), nullptr);
    EXPECT_EQ(std::string(QRMKitVersion()), QRMKIT_PROJECT_VERSION);
}

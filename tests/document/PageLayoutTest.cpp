#include "document/PageLayout.h"

#include <gtest/gtest.h>

#include <string>

namespace ladrix {
namespace {

TEST(PageLayout, EveryPrefixHasBothOrientations) {
    ASSERT_EQ(pagePrefixes().size(), 12u);
    for (const PagePrefix& entry : pagePrefixes()) {
        const std::string prefix(entry.prefix);
        const auto portrait = pageSize(prefix + "Portrait");
        const auto landscape = pageSize(prefix + "Landscape");
        ASSERT_TRUE(portrait && landscape) << prefix;
        EXPECT_LT(portrait->PageWidth, portrait->PageHeight) << prefix;
        EXPECT_EQ(landscape->PageWidth, portrait->PageHeight) << prefix;
        EXPECT_EQ(landscape->PageHeight, portrait->PageWidth) << prefix;
        EXPECT_FALSE(entry.caption.empty()) << prefix;
        // The preview's shape is the page's, but for the one that is half an inch short.
        const Single height = portrait->PageHeight / portrait->PageWidth * entry.previewWidth;
        const Single slack = prefix == "7.5x10.5" ? 0.501f : entry.previewWidth * 0.005f;
        EXPECT_NEAR(entry.previewHeight, height, slack) << prefix;
        EXPECT_LE(entry.previewHeight, entry.previewUnit) << prefix;
    }
}

TEST(PageLayout, KeysAreComparedExactly) {
    EXPECT_EQ(pageSize("215x275Landscape")->PageWidth, 10.83f);
    for (const char* key : {"", "8.5x11", "8.5x11portrait", "8.5x11Portrait ", "Portrait",
                            " 8.5x11Portrait", "8.5x110Portrait"})
        EXPECT_FALSE(pageSize(key)) << key;
}

TEST(PageLayout, ThePreviewKnowsAllButThreeKeys) {
    std::string unknown;
    for (const PagePrefix& entry : pagePrefixes())
        for (const char* word : {"Portrait", "Landscape"})
            if (const std::string key = std::string(entry.prefix) + word; !previewPageSize(key))
                unknown += key + ' ';
    EXPECT_EQ(unknown, "10x14Landscape 17x22Portrait 17x22Landscape ");
    EXPECT_FALSE(previewPageSize("A4"));
}

}  // namespace
}  // namespace ladrix

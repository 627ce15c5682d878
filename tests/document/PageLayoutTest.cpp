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

TEST(PageLayout, MetricPagesAreInchesWithTwoDecimals) {
    EXPECT_EQ(pageSize("297x420Portrait")->PageWidth, 11.69f);
    EXPECT_EQ(pageSize("210x297Portrait")->PageHeight, 11.69f);
    EXPECT_EQ(pageSize("215x275Landscape")->PageWidth, 10.83f);
    EXPECT_EQ(pageSize("215x275Landscape")->PageHeight, 8.46f);
}

TEST(PageLayout, KeysAreComparedExactly) {
    for (const char* key : {"", "8.5x11", "8.5x11portrait", "8.5x11Portrait ", "Portrait",
                            " 8.5x11Portrait", "8.5x110Portrait", "8.5x11PortraitLandscape"}) {
        EXPECT_FALSE(pageSize(key)) << key;
    }
}

TEST(PageLayout, ThePreviewKnowsAllButThreeKeys) {
    int known = 0;
    for (const PagePrefix& entry : pagePrefixes()) {
        for (const char* word : {"Portrait", "Landscape"}) {
            known += previewPageSize(std::string(entry.prefix) + word) ? 1 : 0;
        }
    }
    EXPECT_EQ(known, 21);
    EXPECT_FALSE(previewPageSize("10x14Landscape"));
    EXPECT_TRUE(previewPageSize("10x14Portrait"));
    EXPECT_FALSE(previewPageSize("17x22Portrait"));
    EXPECT_FALSE(previewPageSize("17x22Landscape"));
    EXPECT_FALSE(previewPageSize("A4"));
}

}  // namespace
}  // namespace ladrix

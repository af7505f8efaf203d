#include "cli/Process.h"
#include "support/TempHome.h"
#include "support/TestBmp.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;

/// Two that look alike, one with a telling name, and one that is no picture.
struct PhotoHome : TempHome {
    PhotoHome()
    {
        file("Pictures/a.bmp", testBmp(128, 96, 1));
        file("Pictures/b.bmp", testBmp(128, 96, 1));
        file("Pictures/Screenshot.bmp", testBmp(120, 96, 2));
        file("Pictures/broken.jpg", std::string(40'000, 'x'));
        file("Elsewhere/c.bmp", testBmp(128, 128, 3));
    }
};

Process::Outcome photos(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "photos");
    return Process{std::move(arguments)}.run();
}

} // namespace

TEST(PhotosCommandTest, theFindingsAndThePhotosComeAsOneDocument)
{
    const PhotoHome home;
    const Process::Outcome outcome = photos({"--json"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const Json document = outcome.document();
    std::string kinds;
    for (const Json& finding : document["findings"])
        kinds += finding["kind"].get<std::string>() + ' ';
    EXPECT_EQ(kinds, "photoDuplicates screenshots receipts memes blurry ");
    const Json& alike = document["findings"][0]["items"];
    ASSERT_EQ(alike.size(), 1U);
    EXPECT_EQ(alike[0]["path"], home.path("Pictures/b.bmp"));
    EXPECT_EQ(alike[0]["note"], "Similar to a.bmp — keeping the sharpest · Identical picture");
    EXPECT_EQ(document["findings"][1]["items"][0]["path"], home.path("Pictures/Screenshot.bmp"));

    ASSERT_EQ(document["sets"].size(), 1U);
    EXPECT_EQ(document["sets"][0]["kept"], home.path("Pictures/a.bmp"));
    EXPECT_EQ(document["sets"][0]["members"],
              Json({{{"path", alike[0]["path"]}, {"why", alike[0]["note"]}}}));
    EXPECT_EQ(document["looked"], 4);
    EXPECT_EQ(document["total"], 4);

    ASSERT_EQ(document["photos"].size(), 3U) << "without what is no picture, nor what lies elsewhere";
    const Json& first = document["photos"][0];
    EXPECT_EQ(first["path"], home.path("Pictures/Screenshot.bmp"));
    EXPECT_EQ(first["width"], 120);
    EXPECT_EQ(first["height"], 96);
    EXPECT_TRUE(first["sharpness"].is_number());
    EXPECT_TRUE(first["labels"].is_array());
    EXPECT_TRUE(document["seconds"].is_number());
}

TEST(PhotosCommandTest, namedFoldersAreLookedIntoWhereverTheyAre)
{
    const PhotoHome home;
    const Json document = photos({home.path("Elsewhere"), home.path("Pictures"), "--json"}).document();
    EXPECT_EQ(document["photos"].size(), 4U);
    const Process::Outcome outcome = photos({home.path("Pictures")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("3 pictures looked at"));
    EXPECT_THAT(outcome.out, HasSubstr("~/Pictures/b.bmp"));
    EXPECT_THAT(outcome.out, HasSubstr("Similar to a.bmp — keeping the sharpest"));
    EXPECT_EQ(photos({home.path("missing")}).status, 2);
    EXPECT_EQ(photos({"/etc"}).status, 2);
}

TEST(PhotosCommandTest, withoutPicturesAllFindingsAreEmpty)
{
    const TempHome home;
    const Json document = photos({"--json"}).document();
    EXPECT_EQ(document["findings"].size(), 5U);
    EXPECT_EQ(document["photos"].size(), 0U);
    EXPECT_THAT(photos({}).out, HasSubstr("No photos to review were found."));
}

} // namespace orlen

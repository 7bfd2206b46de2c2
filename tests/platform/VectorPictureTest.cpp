#include <gtest/gtest.h>

#include <string>

#include "platform/lib/VectorPicture.h"

namespace cutline {
namespace {

struct PictureRow {
  const char* name;
  std::string bytes;
  bool isVector;
};

class VectorPictures : public testing::TestWithParam<PictureRow> {};

TEST_P(VectorPictures, AreKnownByTheirOutermostElement) {
  EXPECT_EQ(isVectorPicture(GetParam().bytes), GetParam().isVector);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VectorPictures,
    testing::Values(
        PictureRow{"Plain", "<svg/>", true},
        PictureRow{"InItsNamespace", "<svg xmlns='http://www.w3.org/2000/svg'/>", true},
        PictureRow{"WithAPrefix", "<s:svg xmlns:s='http://www.w3.org/2000/svg'/>", true},
        PictureRow{"BehindAProlog", "<?xml version='1.0'?>\n<!-- a <tape> -->\n<svg>", true},
        PictureRow{"WithADoctype", "<!DOCTYPE svg [<!ENTITY a 'b'>]><svg>&a;</svg>", true},
        PictureRow{"NotWhole", "<svg width='4'><rect", true},
        PictureRow{"InUtf16", std::string("\xff\xfe<\0s\0v\0g\0/\0>\0", 14), true},
        PictureRow{"InAnEncodingOfManyBytes",
                   "<?xml version='1.0' encoding='Shift_JIS'?><!-- \x83\x65 --><svg/>", true},
        PictureRow{"AnotherDocument", "<html><svg/></html>", false},
        PictureRow{"ALongerName", "<svgs/>", false}, PictureRow{"ATagCutOff", "<svg", false},
        PictureRow{"OneInAComment", "<!-- <svg/> --><html/>", false},
        PictureRow{"Words", "no picture", false}, PictureRow{"Nothing", "", false},
        PictureRow{"TooLong", "<svg/>" + std::string(17U << 20U, ' '), false}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace cutline

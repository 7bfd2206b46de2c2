// The loader of documents: what it composes and draws, in which order, and what it drops.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QTest>
#include <QThread>
#include <algorithm>
#include <atomic>

#include "host/dialog/DocumentPages.h"
#include "tests/dialog/DialogTest.h"
#include "tests/dialog/FakeComposer.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {

namespace {

LabelPage tape() {
  LabelPage label{68.03, 141.73, 4, 4, 64.03, 137.73};
  label.upright = 90;
  return label;
}

CompositionRequest requestFor(const LayoutSettings& layout = {}) {
  CompositionRequest request;
  request.label = tape();
  request.layout = layout;
  return request;
}

LayoutSettings shrunk(double percent) { return {Scaling::percent, percent}; }

class DocumentPagesTest : public testing::Test {
 protected:
  DocumentPagesTest() {
    QObject::connect(&mLoader, &DocumentLoader::composed, [this] {
      mNews.push_back("composed " + std::to_string(mLoader.report().pages.size()));
    });
    QObject::connect(&mLoader, &DocumentLoader::pageDrawn,
                     [this](int page) { mNews.push_back("drawn " + std::to_string(page)); });
    QObject::connect(&mLoader, &DocumentLoader::failed, [this](const QString& reason) {
      mNews.push_back("failed " + reason.toStdString());
    });
    QObject::connect(&mLoader, &DocumentLoader::waiting, [this](bool isWaiting) {
      if (isWaiting) mNews.emplace_back("waiting");
    });
    QObject::connect(&mLoader, &DocumentLoader::becameIdle, [this] { mIsSettled = true; });
  }

  void setDocument(const std::string& path = "/nowhere/labels.pdf") {
    mLoader.setDocuments({path}, mComposer->tools());
  }
  void compose(const CompositionRequest& request) {
    mIsSettled = false;
    mLoader.compose(request);
  }
  void lookForInks() {
    setDocument();
    QObject::connect(&mLoader, &DocumentLoader::inksKnown, [this] { mAreInksTold = true; });
    compose(requestFor());
    EXPECT_TRUE(settle());
    EXPECT_TRUE(mAreInksTold);
  }

  bool settle() {
    return waitUntil([this] { return mIsSettled; });
  }
  // How many labels each request to the composer was for; 0 for all.
  std::vector<int> asked() {
    std::vector<int> most;
    for (const CompositionRequest& each : mComposer->requests()) most.push_back(each.pages.most);
    return most;
  }

  bool mAreInksTold = false;
  std::shared_ptr<FakeComposer> mComposer = std::make_shared<FakeComposer>();
  std::vector<std::string> mNews;
  bool mIsSettled = false;
  DocumentLoader mLoader;
};

// What is drawn gives way, too: the drawer is started by the thread that composes.
TEST_F(DocumentPagesTest, ComposingGivesWayToTheWindow) {
  const int own = ::getpriority(PRIO_PROCESS, 0);
  std::atomic<int> composing{own};
  std::atomic<int> opening{own};
  DocumentTools tools = mComposer->tools();
  const DocumentTools fake = tools;
  tools.compose = [&, fake](const auto& paths, const auto& request, std::stop_token stop) {
    composing = ::getpriority(PRIO_PROCESS, 0);
    return fake.compose(paths, request, std::move(stop));
  };
  tools.open = [&, fake](const ComposedDocument& composed) {
    opening = ::getpriority(PRIO_PROCESS, 0);
    return fake.open(composed);
  };
  mLoader.setDocuments({"/nowhere/labels.pdf"}, tools);
  compose(requestFor());
  ASSERT_TRUE(settle());
  const int given = std::min(own + 10, 19);  // the lowest priority that there is
  EXPECT_EQ(composing, given);
  EXPECT_EQ(opening, given);
  EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), own);
}

TEST_F(DocumentPagesTest, TheFirstLabelIsComposedBeforeTheRest) {
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(asked(), (std::vector{1, 0}));
  EXPECT_EQ(mNews, (std::vector<std::string>{"composed 1", "composed 3"}));
  EXPECT_TRUE(mLoader.isComplete());
}

TEST_F(DocumentPagesTest, ASingleLabelIsComposedOnce) {
  mComposer->setPages(1);
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(asked(), std::vector{1});
  EXPECT_TRUE(mLoader.isComplete());
}

TEST_F(DocumentPagesTest, WhereOnlyTheBeginningWasReadTheRestIsComposedToo) {
  mComposer->setPages(1);
  mComposer->setPartial();
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(asked(), (std::vector{1, 0}));
  EXPECT_TRUE(mLoader.isComplete());
}

TEST_F(DocumentPagesTest, ATextIsOne) {
  const test::TemporaryFolder folder;
  setDocument(folder.write("notes.txt", "one\n\ntwo\n"));
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_TRUE(mLoader.hasText());
}

TEST_F(DocumentPagesTest, ADrawingIsNoText) {
  const test::TemporaryFolder folder;
  setDocument(folder.write("art.svg", "<?xml version=\"1.0\"?>\n<svg width=\"1\"/>\n"));
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_FALSE(mLoader.hasText());
}

TEST_F(DocumentPagesTest, TheFirstLabelIsDrawnBeforeTheRestIsComposed) {
  mComposer->holdRest();
  setDocument();
  mLoader.request({{0, 1.0}, {2, 1.0}});
  QObject::connect(&mLoader, &DocumentLoader::pageDrawn, [this] { mComposer->letGo(); });
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(mNews, (std::vector<std::string>{"composed 1", "drawn 0", "composed 3", "drawn 2"}));
}

TEST_F(DocumentPagesTest, ANewerRequestStopsTheOlder) {
  mComposer->hold();
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(waitUntil([this] { return mComposer->requests().size() == 1; }));
  compose(requestFor(shrunk(50)));
  ASSERT_TRUE(waitUntil([this] { return mComposer->stopped() == 1; }));
  mComposer->letGo();
  ASSERT_TRUE(settle());
  EXPECT_EQ(mNews, (std::vector<std::string>{"composed 1", "composed 3"}));
  EXPECT_EQ(mComposer->requests().back().layout.percent, 50);
}

TEST_F(DocumentPagesTest, AnswersToOlderRequestsAreDropped) {
  setDocument();
  compose(requestFor());
  // The answer is on its way, but this thread does not look for it yet.
  while (mComposer->answered() < 1) QThread::msleep(1);
  QThread::msleep(20);
  mComposer->setPages(2);
  compose(requestFor(shrunk(50)));
  ASSERT_TRUE(settle());
  EXPECT_EQ(mNews, (std::vector<std::string>{"composed 1", "composed 2"}));
}

TEST_F(DocumentPagesTest, TheSameRequestAgainChangesNothing) {
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  mLoader.compose(requestFor());
  QTest::qWait(30);
  EXPECT_EQ(asked(), (std::vector{1, 0}));
}

TEST_F(DocumentPagesTest, WhereTheContentChoosesThePapersLengthDoesNotCount) {
  CompositionRequest request = requestFor();
  request.label.isContinuous = true;
  request.lengthBounds = LengthBounds{20, 2000};
  setDocument();
  compose(request);
  ASSERT_TRUE(settle());
  request.label.length += 30;
  request.label.top += 30;
  mLoader.compose(request);
  QTest::qWait(30);
  EXPECT_EQ(asked().size(), 2u);
  request.label.top += 1;  // another margin
  compose(request);
  ASSERT_TRUE(settle());
  EXPECT_EQ(asked().size(), 4u);
}

TEST_F(DocumentPagesTest, AllPagesAreComposedWhateverIsChosen) {
  CompositionRequest request = requestFor();
  request.pages.ranges = *PageRanges::parse("2");
  setDocument();
  compose(request);
  ASSERT_TRUE(settle());
  EXPECT_EQ(mComposer->requests().back().pages.ranges.text(), "");
}

TEST_F(DocumentPagesTest, OtherDocumentsAreComposedAnew) {
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  setDocument("/nowhere/other.pdf");
  EXPECT_FALSE(mLoader.isOpen());
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(asked(), (std::vector{1, 0, 1, 0}));
}

TEST_F(DocumentPagesTest, NothingIsComposedBeforeThereIsADocument) {
  mLoader.compose(requestFor());
  QTest::qWait(20);
  EXPECT_TRUE(mComposer->requests().empty());
  EXPECT_TRUE(mLoader.isIdle());
}

TEST_F(DocumentPagesTest, AFailureIsToldAndLeavesNothing) {
  mComposer->fail("labels.pdf: damaged");
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(mNews, std::vector<std::string>{"failed labels.pdf: damaged"});
  EXPECT_TRUE(mLoader.hasFailed());
  EXPECT_FALSE(mLoader.isOpen());
}

TEST_F(DocumentPagesTest, AnotherLookMakesEveryPictureOld) {
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  mNews.clear();
  mLoader.setLook({true});
  EXPECT_EQ(mNews, std::vector<std::string>{"composed 3"});
  mLoader.setLook({true});
  EXPECT_EQ(mNews.size(), 1u);
}

TEST_F(DocumentPagesTest, OnlyWhatTakesLongIsWaitedFor) {
  setDocument();
  compose(requestFor());
  ASSERT_TRUE(settle());
  EXPECT_EQ(std::count(mNews.begin(), mNews.end(), "waiting"), 0);
  mComposer->hold();
  compose(requestFor(shrunk(50)));
  EXPECT_TRUE(waitUntil([this] { return mNews.back() == "waiting"; }));
  EXPECT_TRUE(mLoader.isOpen()) << "the old labels are shown until the new ones are there";
  mComposer->letGo();
  ASSERT_TRUE(settle());
}

TEST_F(DocumentPagesTest, LabelsWhoseInkIsPrintableAreNotLookedAt) {
  mComposer->setPrintableInk();
  lookForInks();
  EXPECT_TRUE(mLoader.inks().empty());
}

TEST_F(DocumentPagesTest, TheInkOfEveryLabelIsLookedFor) {
  lookForInks();
  ASSERT_EQ(mLoader.inks().size(), 3u);
  ASSERT_TRUE(mLoader.inks().at(2));
  EXPECT_NEAR(mLoader.inks().at(2)->surely.left, tape().left, 0.7);
  EXPECT_NEAR(mLoader.inks().at(2)->perhaps.top, tape().top, 0.7);
}

TEST(PageCacheTest, AnOldPictureIsShownAndNotTheOneThatIsWanted) {
  PageCache cache;
  QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  cache.insert(0, 2, image);
  EXPECT_TRUE(cache.has(0, 2));
  EXPECT_FALSE(cache.has(0, 3));
  cache.setOld();
  EXPECT_FALSE(cache.has(0, 2));
  EXPECT_FALSE(cache.image(0).isNull());
}

TEST(PageCacheTest, HasRoomForWhatIsSeenAndForgetsTheRest) {
  PageCache cache;
  QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  cache.setRoom(100);
  for (int page = 0; page < 120; ++page) cache.insert(page, 1, image);
  EXPECT_TRUE(cache.has(119, 1));
  EXPECT_TRUE(cache.has(20, 1));
  EXPECT_FALSE(cache.has(19, 1));
  cache.setRoom(0);
  EXPECT_TRUE(cache.has(80, 1));
  EXPECT_FALSE(cache.has(79, 1));
}

}  // namespace

}  // namespace cutline

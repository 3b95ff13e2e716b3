// Points, sizes and rectangles.
#include <atltypes.h>

#include <gtest/gtest.h>

namespace {

// Opaque to the optimiser, as a function in another module is.
[[gnu::noinline]] LONG RightAfterMoving(CRect& rect, CPoint& corner) {
    const LONG before = rect.right;
    corner.x += 5;
    return rect.right - before;
}

} // namespace

TEST(Point, IsMadeFromWhatHasTwoNumbers) {
    EXPECT_TRUE(CPoint() == CPoint(0, 0));
    EXPECT_TRUE(CPoint(POINT{3, -4}) == CPoint(3, -4));
    EXPECT_TRUE(CPoint(SIZE{3, -4}) == CPoint(3, -4));
}

TEST(Point, TakesTheSignedWordsOfAMouseMessage) {
    const CPoint leftOfTheMainScreen(static_cast<LPARAM>(MAKELPARAM(-7, 300)));
    EXPECT_EQ(leftOfTheMainScreen.x, -7);
    EXPECT_EQ(leftOfTheMainScreen.y, 300);
}

TEST(Point, MovesByPointsSizesAndNumbers) {
    CPoint point(30, 40);
    point += CPoint(5, -7);
    EXPECT_TRUE(point == CPoint(35, 33));
    point -= CPoint(5, -7);
    EXPECT_TRUE(point == CPoint(30, 40));
    point += CSize(1, 2);
    point -= CSize(0, 2);
    point.Offset(1, 1);
    point.Offset(POINT{1, 0});
    point.Offset(SIZE{0, 1});
    EXPECT_TRUE(point == CPoint(33, 42));
}

TEST(Point, SubtractsToTheWayBetween) {
    const CSize way = CPoint(25, -19) - CPoint(15, 5);
    EXPECT_TRUE(way == CSize(10, -24));
    EXPECT_TRUE(CPoint(25, -19) - CSize(15, 5) == CPoint(10, -24));
    EXPECT_TRUE(CPoint(25, -19) + CSize(15, 5) == CPoint(40, -14));
    EXPECT_TRUE(CPoint(25, -19) + CPoint(15, 5) == CPoint(40, -14));
    EXPECT_TRUE(-CPoint(25, -19) == CPoint(-25, 19));
    EXPECT_TRUE(CPoint(1, 2) != CPoint(2, 1));
    EXPECT_FALSE(CPoint(1, 2) != CPoint(1, 2));
}

TEST(Point, MovesARectangle) {
    const CRect rect(125, 219, 325, 419);
    EXPECT_TRUE(CPoint(25, -19) + &rect == CRect(150, 200, 350, 400));
    EXPECT_TRUE(CPoint(25, -19) - &rect == CRect(100, 238, 300, 438));
}

TEST(Size, IsMadeFromWhatHasTwoNumbers) {
    EXPECT_TRUE(CSize() == CSize(0, 0));
    EXPECT_TRUE(CSize(SIZE{3, -4}) == CSize(3, -4));
    EXPECT_TRUE(CSize(POINT{3, -4}) == CSize(3, -4));
    const CSize fromWords(static_cast<DWORD>(MAKELONG(16, 200)));
    EXPECT_TRUE(fromWords == CSize(16, 200));
}

TEST(Size, AddsAndSubtracts) {
    CSize size(100, 50);
    size += CSize(1, 2);
    EXPECT_TRUE(size == CSize(101, 52));
    size -= CSize(1, 2);
    EXPECT_TRUE(size == CSize(100, 50));
    EXPECT_TRUE(size + CSize(1, 1) == CSize(101, 51));
    EXPECT_TRUE(size - CSize(1, 1) == CSize(99, 49));
    EXPECT_TRUE(-size == CSize(-100, -50));
    EXPECT_TRUE(size != CSize(50, 100));
    EXPECT_TRUE(size + CPoint(1, 2) == CPoint(101, 52));
    EXPECT_TRUE(size - CPoint(101, 52) == CPoint(1, 2)) << "the point moved back";
    const CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(size + &rect == CRect(100, 50, 110, 60));
    EXPECT_TRUE(size - &rect == CRect(-100, -50, -90, -40));
}

TEST(Rect, IsMadeFromSidesCornersAndExtents) {
    const RECT plain = {0, 0, 100, 50};
    const CRect sides(0, 0, 100, 50);
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(plain) == sides);
    EXPECT_TRUE(CRect(&plain) == sides);
    EXPECT_TRUE(CRect(CPoint(0, 0), CSize(100, 50)) == sides);
    EXPECT_TRUE(CRect(CPoint(0, 0), CPoint(100, 50)) == sides);
    CRect assigned;
    assigned = plain;
    EXPECT_TRUE(assigned == sides);
    assigned.SetRectEmpty();
    assigned.CopyRect(&plain);
    EXPECT_TRUE(assigned == sides);
    assigned.SetRect(1, 2, 3, 4);
    EXPECT_TRUE(assigned != sides);
}

TEST(Rect, KnowsItsExtents) {
    const CRect rect(20, 30, 80, 70);
    EXPECT_EQ(rect.Width(), 60);
    EXPECT_EQ(rect.Height(), 40);
    EXPECT_TRUE(rect.Size() == CSize(60, 40));
    EXPECT_TRUE(rect.CenterPoint() == CPoint(50, 50));
    EXPECT_EQ(CRect(80, 0, 20, 0).Width(), -60) << "not normalised";
}

TEST(Rect, HandsOutItsCornersForReadingAndWriting) {
    CRect rect(10, 10, 350, 350);
    rect.BottomRight() = CPoint(180, 181);
    rect.TopLeft().x = 5;
    EXPECT_TRUE(rect == CRect(5, 10, 180, 181));
    const CRect constant(rect);
    EXPECT_TRUE(constant.TopLeft() == CPoint(5, 10));
    EXPECT_TRUE(constant.BottomRight() == CPoint(180, 181));
}

TEST(Rect, SeesWhatIsWrittenThroughACorner) {
    CRect rect(0, 0, 10, 10);
    EXPECT_EQ(RightAfterMoving(rect, rect.BottomRight()), 5);
}

TEST(Rect, GoesWhereTheSystemWantsARectangle) {
    CRect rect;
    ::SetRect(rect, 1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    const CRect constant(rect);
    EXPECT_TRUE(::EqualRect(constant, &rect));
}

TEST(Rect, IsEmptyWithoutAnAreaAndNullOnlyAtZero) {
    EXPECT_TRUE(CRect(35, 35, 35, 60).IsRectEmpty());
    EXPECT_FALSE(CRect(35, 35, 35, 60).IsRectNull());
    EXPECT_FALSE(CRect(35, 50, 135, 150).IsRectEmpty());
}

TEST(Rect, HoldsItsLeftAndTopSidesButNotTheOthers) {
    const CRect rect(5, 5, 100, 100);
    EXPECT_TRUE(rect.PtInRect(CPoint(5, 65)));
    EXPECT_TRUE(rect.PtInRect(CPoint(88, 5)));
    EXPECT_FALSE(rect.PtInRect(CPoint(35, 100)));
    EXPECT_FALSE(rect.PtInRect(CPoint(100, 98)));
    EXPECT_FALSE(rect.PtInRect(CPoint(125, 298)));
}

TEST(Rect, GrowsAndShrinksOnAllSidesOrSideBySide) {
    CRect rect(0, 0, 300, 300);
    rect.InflateRect(50, 200);
    EXPECT_TRUE(rect == CRect(-50, -200, 350, 500));
    rect.DeflateRect(CSize(50, 200));
    EXPECT_TRUE(rect == CRect(0, 0, 300, 300));
    rect.InflateRect(CSize(1, 2));
    rect.DeflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(0, 0, 300, 300));

    CRect sides(10, 10, 50, 50);
    sides.DeflateRect(1, 2, 3, 4);
    EXPECT_TRUE(sides == CRect(11, 12, 47, 46));
    const CRect amounts(1, 2, 3, 4);
    sides.InflateRect(amounts);
    EXPECT_TRUE(sides == CRect(10, 10, 50, 50));
    sides -= amounts;
    EXPECT_TRUE(sides == CRect(11, 12, 47, 46));
    sides += amounts;
    EXPECT_TRUE(sides + static_cast<LPCRECT>(amounts) == CRect(9, 8, 53, 54));
    EXPECT_TRUE(sides - static_cast<LPCRECT>(amounts) == CRect(11, 12, 47, 46));
}

TEST(Rect, Moves) {
    CRect rect(0, 0, 35, 35);
    rect.OffsetRect(230, 230);
    EXPECT_TRUE(rect == CRect(230, 230, 265, 265));
    rect.OffsetRect(CPoint(-230, 0));
    rect.OffsetRect(CSize(0, -230));
    EXPECT_TRUE(rect == CRect(0, 0, 35, 35));
    rect.MoveToX(10);
    rect.MoveToY(20);
    EXPECT_TRUE(rect == CRect(10, 20, 45, 55));
    rect.MoveToXY(CPoint(1, 2));
    EXPECT_TRUE(rect == CRect(1, 2, 36, 37));
    rect += CPoint(1, 1);
    rect -= CSize(2, 3);
    EXPECT_TRUE(rect == CRect(0, 0, 35, 35));
    EXPECT_TRUE(rect + CPoint(35, 65) == CRect(35, 65, 70, 100));
    EXPECT_TRUE(rect - CSize(35, 65) == CRect(-35, -65, 0, -30));
}

TEST(Rect, IsPutTheRightWayRound) {
    CRect rect(250, 310, 110, 100);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(110, 100, 250, 310));
}

TEST(Rect, IntersectsUnitesAndSubtracts) {
    const CRect a(100, 0, 200, 300);
    const CRect b(0, 100, 300, 200);
    EXPECT_TRUE((a & b) == CRect(100, 100, 200, 200));
    EXPECT_TRUE((a | b) == CRect(0, 0, 300, 300));
    CRect rect(a);
    rect &= b;
    EXPECT_TRUE(rect == (a & b));
    rect = a;
    rect |= b;
    EXPECT_TRUE(rect == (a | b));
    EXPECT_FALSE(rect.IntersectRect(CRect(0, 0, 1, 1), CRect(5, 5, 6, 6)));
    EXPECT_TRUE(rect.IsRectEmpty());
    EXPECT_TRUE(rect.UnionRect(a, b));

    EXPECT_TRUE(rect.SubtractRect(CRect(10, 10, 100, 100), CRect(50, 10, 150, 150)));
    EXPECT_TRUE(rect == CRect(10, 10, 50, 100));
    rect.SubtractRect(CRect(10, 10, 100, 100), CRect(50, 50, 150, 150));
    EXPECT_TRUE(rect == CRect(10, 10, 100, 100)) << "what remains is no rectangle";
}

#include "map/ZvDispLayer.h"

#include <gtest/gtest.h>

#include "map/Composite.h"
#include "support/MapHome.h"

namespace {

using zv::test::Cu;
using zv::test::L;
using zv::test::MapHome;

/// A map with one circle in each of posts 1 and 3, user sets 1 and 5, cultures 120 and 121 of
/// layer 25.
struct Tree : MapHome {
    Tree() {
        for (const int post : {3, 1})
            for (const int uset : {1, 5})
                for (const int culture : {121, 120})
                    AddCircle(1, 25, post, uset, culture);
    }
    CZvDispLayer& Layer() { return *map.GetDispLayer(L(25)); }
    int Count() {
        int count = 0;
        std::vector<int> posts;
        Layer().GetPostList(posts);
        for (const int post : posts)
            for (const int uset : Layer().GetUSetList(post))
                for (const int culture : Layer().GetCultureList(post, uset))
                    count += Layer().GetCultureCount(post, uset, Cu(culture));
        return count;
    }
};

TEST(Layer, ListsItsChildrenAscending) {
    Tree tree;
    std::vector<int> posts{77};
    EXPECT_TRUE(tree.Layer().GetPostList(posts));
    EXPECT_EQ(posts, (std::vector<int>{1, 3}));
    EXPECT_EQ(tree.Layer().GetUSetList(1), (std::vector<int>{1, 5}));
    EXPECT_EQ(tree.Layer().GetCultureList(3, 5), (std::vector<int>{120, 121}));
    EXPECT_TRUE(tree.Layer().GetUSetList(2).empty());
    EXPECT_EQ(tree.Layer().GetCultureCount(1, 1, Cu(120)), 1);
    EXPECT_EQ(tree.Layer().GetCultureCount(2, 1, Cu(120)), 0);
    EXPECT_EQ(tree.Layer().GetFirstPost()->GetPostName(), 1);
    EXPECT_EQ(tree.Layer().GetNextPost()->GetPostName(), 3);
    EXPECT_FALSE(tree.Layer().IsLastPost());
    EXPECT_EQ(tree.Layer().GetNextPost(), nullptr);
    EXPECT_TRUE(tree.Layer().IsLastPost());
    CZvDispUSet* set = tree.Layer().GetPost(3)->GetUSet(5);
    EXPECT_NE(set->GetFirstCult(), nullptr);
    EXPECT_NE(set->GetNextCult(), nullptr);
    EXPECT_EQ(set->GetNextCult(), nullptr);
}

TEST(Layer, DeletesByTheTableOfWildcards) {
    const struct {
        int post, uset, culture, left;
    } cases[] = {
        {99, 99, 900, 0}, {99, 99, 120, 4}, {3, 99, 900, 4}, {3, 99, 120, 8},  {3, 5, 900, 6},
        {3, 5, 120, 7},   {99, 5, 900, 8},  {99, 5, 120, 8}, {77, 99, 900, 8}, {3, 77, 120, 8},
    };
    for (const auto& c : cases) {
        Tree tree;
        tree.Layer().Delete(c.post, c.uset, Cu(c.culture));
        EXPECT_EQ(tree.Count(), c.left) << c.post << " " << c.uset << " " << c.culture;
    }
}

TEST(Layer, DeletedChildrenAreGoneFromTheLists) {
    Tree tree;
    tree.Layer().Delete(3, 99, Cu(900));
    std::vector<int> posts;
    tree.Layer().GetPostList(posts);
    EXPECT_EQ(posts, std::vector<int>{1});
    tree.Layer().Delete(1, 5, Cu(900));
    EXPECT_EQ(tree.Layer().GetUSetList(1), std::vector<int>{1});
}

TEST(Composite, PacksACultureAndASubValue) {
    EXPECT_EQ(zv::Split(Cu(196608 + 7)).culture, 3);
    EXPECT_EQ(zv::Split(Cu(196608 + 7)).sub, 7);
    EXPECT_EQ(zv::Split(Cu(65535)).culture, 65535);
    EXPECT_EQ(zv::Split(Cu(65535)).sub, 0);
    EXPECT_EQ(zv::Split(Cu(65536)).culture, 1);
    EXPECT_EQ(zv::Split(Cu(-1)).culture, 65535);
    EXPECT_EQ(zv::Split(Cu(-1)).sub, 65535);
}

std::unique_ptr<CZvDisplayItem> Only(Tree& tree, int post, int uset, int culture) {
    CZvDispCult* list = tree.Layer().GetPost(post)->GetUSet(uset)->GetCult(Cu(culture));
    for (unsigned id = 10001; id < 10100; ++id)
        if (CZvDisplayItem* item = list->GetItem(id)) return std::unique_ptr<CZvDisplayItem>(item);
    return nullptr;
}

TEST(Layer, StylesReachOneListAndNoWildcards) {
    Tree tree;
    tree.Layer().SetColor(static_cast<ZVColor>(5), 1, 5, Cu(120));
    tree.Layer().SetLineWidth(3.0, 1, 5, Cu(120));
    tree.Layer().SetLineType(2, 1, 5, Cu(120));
    tree.Layer().SetColor(static_cast<ZVColor>(6), 99, 99, Cu(900));
    tree.Layer().SetColor(static_cast<ZVColor>(6), 1, 5, Cu(77));
    EXPECT_EQ(Only(tree, 1, 5, 120)->GetColor(), 5);
    EXPECT_EQ(Only(tree, 1, 5, 120)->GetLineWidth(), 3);
    EXPECT_EQ(Only(tree, 1, 5, 120)->GetLineType(), 2);
    EXPECT_EQ(Only(tree, 1, 5, 121)->GetColor(), 8);
    EXPECT_EQ(Only(tree, 3, 1, 120)->GetColor(), 8);
}

TEST(Layer, ACompositeCultureReachesTheMembersOfItsKey) {
    MapHome m;
    auto* group = new CZvDispGroup;
    for (const int key : {0, 7, 8})
        group->AddPrimitive(key, new CZvDispCircle);
    m.map.AddItem(group, L(2), 1, 1, Cu(3), false);
    m.map.GetDispLayer(L(2))->SetColor(static_cast<ZVColor>(5), 1, 1, Cu(196608 + 7));
    const std::unique_ptr<CZvDisplayItem> item(m.map.GetItem(L(2), 1, 1, Cu(3), 10001));
    auto& woken = static_cast<CZvDispGroup&>(*item);
    EXPECT_EQ(woken.GetGroupItem(7)->GetColor(), 5);
    EXPECT_EQ(woken.GetGroupItem(0)->GetColor(), 5);
    EXPECT_EQ(woken.GetGroupItem(8)->GetColor(), 8);
    EXPECT_EQ(woken.GetColor(), 255);
    m.map.GetDispLayer(L(2))->SetLineType(2, 1, 1, Cu(196608 + 7));
    m.map.GetDispLayer(L(2))->SetLineWidth(3.0, 1, 1, Cu(196608 + 7));
    const std::unique_ptr<CZvDisplayItem> again(m.map.GetItem(L(2), 1, 1, Cu(3), 10001));
    auto& styled = static_cast<CZvDispGroup&>(*again);
    EXPECT_EQ(styled.GetGroupItem(7)->GetLineType(), 2);
    EXPECT_EQ(styled.GetGroupItem(7)->GetLineWidth(), 3);
    EXPECT_EQ(styled.GetGroupItem(8)->GetLineType(), 0);
    EXPECT_EQ(styled.GetGroupItem(8)->GetLineWidth(), 0);
}

TEST(Layer, SettersOfTheInterfaceWithoutEffect) {
    Tree tree;
    tree.Layer().SetDegree(30.0, 1, 1, Cu(120));
    tree.Layer().SetFill(true, 1, 1, Cu(120));
    tree.Layer().SetFillStyle(static_cast<E_FILL_STYLE>(2), 1, 1, Cu(120));
    tree.Layer().SetSmooth(true, 1, 1, Cu(120));
    const auto item = Only(tree, 1, 1, 120);
    EXPECT_EQ(item->GetDegree(), 0.0);
    EXPECT_FALSE(item->GetFill());
    EXPECT_EQ(item->GetFillStyle(), 0);
    EXPECT_FALSE(item->GetSmooth());
}

std::string Drawn(Tree& tree) {
    zv::test::RecordingContext context;
    tree.map.SetContext(&context);
    tree.map.Draw(L(25), 99, 99, Cu(900), false);
    int circles = 0;
    for (const std::string& line : context.trace)
        circles += line.starts_with("circle");
    tree.map.SetContext(nullptr);
    return std::to_string(circles);
}

TEST(Layer, VisibilityReachesAListAPostOrTheLayer) {
    Tree tree;
    tree.Layer().SetVisibility(false, 1, 5, Cu(120));
    EXPECT_EQ(Drawn(tree), "7");
    tree.Layer().SetVisibility(false, 1, 99, Cu(120));
    EXPECT_EQ(Drawn(tree), "4") << "the culture argument is passed over";
    EXPECT_TRUE(tree.map.SetLayerVisibility(L(25), false));
    EXPECT_EQ(Drawn(tree), "0");
    EXPECT_TRUE(tree.map.SetLayerVisibility(L(25), true));
    EXPECT_EQ(Drawn(tree), "8");
    EXPECT_FALSE(tree.map.SetLayerVisibility(L(77), true));
}

TEST(Layer, ACopySharesTheTree) {
    Tree tree;
    CZvDispLayer copy(tree.Layer());
    EXPECT_EQ(copy.GetLayerName(), 25);
    EXPECT_EQ(copy.GetPost(3), tree.Layer().GetPost(3));
}

TEST(Layer, ANegativeCultureIsNotSplitInADraw) {
    MapHome m;
    zv::test::RecordingContext context;
    context.traceTags = false;
    m.AddCircle(1, 25, 1, 1, 65535);
    m.map.SetContext(&context);
    m.map.Draw(L(25), 1, 1, Cu(-1), false);
    EXPECT_EQ(context.Take(), "open\nclose\n");
}

TEST(Layer, WithoutAContextADrawDoesNothing) {
    Tree tree;
    EXPECT_NO_THROW(tree.Layer().Draw(nullptr, 99, 99, Cu(900), false));
    EXPECT_EQ(tree.Count(), 8);
}

TEST(Layer, HandsOutFreshObjectsOfAList) {
    Tree tree;
    std::list<CZvDisplayItem*>& missing = tree.Layer().GetDispList(77, 1, Cu(120));
    EXPECT_TRUE(missing.empty());
    std::list<CZvDisplayItem*>& items = tree.Layer().GetDispList(1, 1, Cu(120));
    ASSERT_EQ(items.size(), 1u);
    for (CZvDisplayItem* item : items)
        delete item;
    items.clear();
}

} // namespace

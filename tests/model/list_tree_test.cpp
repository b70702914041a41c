#include "model/list_tree.h"

#include "core_test.h"

namespace Routines {
namespace {

using Lines = std::vector<std::string>;

// Every node on a line of its own, as deep as it stands.
void Describe(const ListTree& tree, int group, const std::string& indent, Lines& lines) {
  const ListTree::Group& here = tree.Groups()[static_cast<std::size_t>(group)];
  for (int child = here.firstGroup; child < here.firstGroup + here.groups; ++child) {
    EXPECT_EQ(tree.Groups()[static_cast<std::size_t>(child)].parent, group);
    lines.push_back(indent + TreeText(tree.Groups()[static_cast<std::size_t>(child)]));
    Describe(tree, child, indent + "  ", lines);
  }
  for (const ListTree::Channel& channel : tree.Channels(group)) {
    EXPECT_EQ(tree.PlaceOf(channel.slot)->group, group);
    lines.push_back(indent + TreeText(channel));
  }
}

Lines LinesOf(const State& state, ListTree::Shape shape) {
  Lines lines;
  Describe(ListTree(state, {{"Hotbird", "SAT A"}}, shape), 0, "", lines);
  return lines;
}

TEST(ListTree, ChannelsStandUnderTheirBouquetOrTransponder) {
  const auto state = std::make_unique<State>();
  EXPECT_EQ(LinesOf(*state, ListTree::Shape::Transponders), Lines{});
  state->ChannelCount = 8;
  state->TransponderCount = 5;
  const auto put = [&state](std::size_t slot, int megahertz, bool horizontal, int satellite,
                            const char* bouquet, const char* code) {
    TransponderRow& row = state->Transponder(slot);
    row.record = Samples::MakeTransponder(megahertz, horizontal, satellite, 1, 2);
    row.SetBouquet(bouquet, code);
  };
  put(1, 12012, true, 1, "Uno", "02");
  put(2, 11013, false, 0, "Due", "01");
  put(3, 11766, false, 1, "", "");
  put(5, 10719, true, 1, "Uno", "02");
  put(6, 10758, true, 0, "Oltre", "01");  // past the count
  const int transponders[] = {5, 1, 4, 5, 0, 6, 255, 3};
  for (std::size_t i = 0; i < 8; ++i)
    state->Channel(i + 1) = Samples::MakeChannel("C" + std::to_string(i), transponders[i], 1, 2, 3);
  state->Channel(9) = Samples::MakeChannel("oltre", 1, 1, 2, 3);

  EXPECT_EQ(
      LinesOf(*state, ListTree::Shape::Bouquets),
      (Lines{"SAT B (4)", "  Nessuno (1)", "    0008 C7", "  Uno (3)", "    0001 C0", "    0002 C1",
             "    0004 C3", "Transponder mancanti (4)", "  0003 C2", "  0005 C4", "  0006 C5", "  0007 C6"}));
  EXPECT_EQ(LinesOf(*state, ListTree::Shape::Transponders),
            (Lines{"SAT A  Hotbird (0)", "  Due (0)", "    002  11013 V (0)", "SAT B (4)", "  Nessuno (1)",
                   "    003  11766 V (1)", "      0008 C7", "  Uno (3)", "    001  12012 H (1)",
                   "      0002 C1", "    005  10719 H (2)", "      0001 C0", "      0004 C3",
                   "Transponder mancanti (4)", "  0003 C2", "  0005 C4", "  0006 C5", "  0007 C6"}));
  const ListTree tree(*state, {}, ListTree::Shape::Transponders);
  EXPECT_TRUE(tree.GroupOf(5).has_value());
  for (const int none : {-1, 0, 4, 6, 256}) EXPECT_FALSE(tree.GroupOf(none).has_value()) << none;
  EXPECT_FALSE(tree.PlaceOf(9).has_value());
}

}  // namespace
}  // namespace Routines

#include "edit/set_fields.h"

#include "model/cells.h"

#include <gtest/gtest.h>

namespace Edit {
namespace {

using namespace Routines;

TEST(SetFields, WhatDoesNotFitStaysAndTheCountsFollow) {
  auto state = std::make_unique<State>();
  state->ChannelCount = 10;
  state->TransponderCount = 5;
  ASSERT_TRUE(EditTransponder(*state, 2, TransponderColumn::Frequency, "11766", {}));
  const auto put = [&](int slot, const char* sid, const char* vpid, const char* apid) {
    for (const auto& [column, text] : {std::pair(ChannelColumn::Sid, sid),
                                       {ChannelColumn::Vpid, vpid},
                                       {ChannelColumn::Apid, apid},
                                       {ChannelColumn::Pcr, "65535"}})
      ASSERT_TRUE(EditChannel(*state, slot, column, text));
  };
  put(1, "100", "160", "80");
  put(2, "65530", "160", "80");
  put(3, "5", "0", "65534");
  put(5, "5", "0", "7");
  ASSERT_TRUE(EditChannel(*state, 1, ChannelColumn::Transponder, "2"));
  const FieldChanges changes{
      {{ChannelColumn::Flags, "24 Seca"}, {ChannelColumn::Active, "N"}, {ChannelColumn::Transponder, "2"}},
      {{ChannelColumn::Sid, 6}, {ChannelColumn::Vpid, 1}, {ChannelColumn::Apid, 1}, {ChannelColumn::Pcr, 1}}};
  const auto plan = PlanFields(*state, {1, 2, 3, 4, 5}, changes);
  ASSERT_TRUE(plan);
  ASSERT_EQ(plan->size(), 4U) << "the empty place is none";
  EXPECT_EQ((*plan)[1].fault, "SID sarebbe 65536, fuori da 0-65535");
  EXPECT_EQ((*plan)[2].fault, "APID sarebbe 65535, cioè nessun PID");
  const auto before = std::make_unique<State>(*state);
  EXPECT_EQ(SetFields(*state, *plan), 2);
  std::string texts;
  for (const int slot : {1, 5})
    for (int column = ChannelColumn::Transponder; column <= ChannelColumn::Active; ++column)
      texts += ChannelCell(*state, slot, column) + " ";
  EXPECT_EQ(texts, "002 106 161 81 0 0 65535 20 N 002 11 0 8 0 0 65535 20 N ");
  for (const int slot : {2, 3, 4}) EXPECT_EQ(state->Channel(slot), before->Channel(slot));
  EXPECT_EQ(TransponderCell(*state, 2, TransponderColumn::Channels), "2") << "the first was counted before";

  EXPECT_EQ(PlanFields(*state, {1}, {{{ChannelColumn::Active, "N"}}, {}})->size(), 0U) << "no change";
  EXPECT_FALSE(PlanFields(*state, {1}, {{{ChannelColumn::Transponder, "3"}}, {}})) << "a free one";
}

}  // namespace
}  // namespace Edit

#include "core_test.h"
#include "model/channel.h"
#include "model/transponder.h"

#include <bit>
#include <random>

namespace Routines {
namespace {

using namespace Samples;

// What the receiver's single precision gives, worked out in whole numbers: the value is rounded to 24 binary
// digits, so is its quotient by a million, and the fraction is dropped.
std::uint64_t RoundedQuotient(std::uint64_t dividend, std::uint64_t divisor) {
  const std::uint64_t quotient = dividend / divisor;
  const std::uint64_t twice = 2 * (dividend % divisor);
  return quotient + (twice > divisor || (twice == divisor && quotient % 2 == 1) ? 1 : 0);
}

int ExactMegahertz(std::uint32_t hertz) {
  std::uint64_t value = hertz;
  if (const auto digits = static_cast<int>(std::bit_width(hertz)); digits > 24) {
    value = RoundedQuotient(hertz, 1ULL << (digits - 24)) << (digits - 24);
  }
  if (value < 1000000) return 0;
  const int fraction = 24 - static_cast<int>(std::bit_width(value / 1000000));
  return static_cast<int>(RoundedQuotient(value << fraction, 1000000) >> fraction);
}

int ShownMegahertz(std::uint32_t hertz) {
  TransponderRecord record;
  Set(record, TransponderField::Frequency, hertz);
  return FrequencyMHz(record) - 9750;
}

// One that single precision lowers, in the compiler's own arithmetic: no level of optimisation may give
// another.
constexpr TransponderRecord At1077MHz{{0x40, 0x31, 0xB7, 0x40, 0, 0, 0, 0, 0, 0, 0, 1}};
static_assert(FrequencyMHz(At1077MHz) == 10600 + 1076);

template <class Record>
void ExpectOwnBitsOnly(const std::vector<Field<Record>>& fields) {
  std::mt19937 random(7);
  for (const Field<Record>& field : fields) {
    Record record;
    for (auto& byte : record.bytes) byte = static_cast<Base::Byte>(random());
    const Record before = record;
    const std::uint32_t value = static_cast<std::uint32_t>(random()) & (field.Mask() >> field.shift);
    Set(record, field, value);
    EXPECT_EQ(Get(record, field), value) << field.offset;
    Set(record, field, Get(before, field));
    EXPECT_EQ(record, before) << field.offset;
  }
}

}  // namespace

TEST(Record, FieldsAreHighByteFirstAndTouchNothingElse) {
  ChannelRecord channel;
  Set(channel, ChannelField::Sid, 0x1234);
  EXPECT_EQ(channel.bytes[18], 0x12);
  EXPECT_EQ(channel.bytes[19], 0x34);
  using namespace ChannelField;
  using namespace TransponderField;
  ExpectOwnBitsOnly<ChannelRecord>({Flags, Active, Transponder, Sid, Vpid, Apid, Aecm, Vecm, Pcr});
  ExpectOwnBitsOnly<TransponderRecord>({Frequency, Tid, Nid, ChannelCount, TransponderField::SymbolRate, Fec,
                                        HighBand, Horizontal, TransponderField::Satellite});
}

TEST(Record, FrequenciesAreThoseOfSinglePrecision) {
  for (std::uint32_t mhz = 1; mhz < 4294; ++mhz) {
    for (int beside = -30; beside <= 30; ++beside) {
      const std::uint32_t hertz = mhz * 1000000U + static_cast<std::uint32_t>(beside * 9973);
      ASSERT_EQ(ShownMegahertz(hertz), ExactMegahertz(hertz)) << hertz;
    }
  }
}

TEST(Record, TranspondersThreeMegahertzApartAreTwo) {
  const auto base = MakeTransponder(10750, true, 1, 0, 0);
  EXPECT_TRUE(SameTransponder(base, MakeTransponder(10752, true, 1, 5, 5)));
  EXPECT_FALSE(SameTransponder(base, MakeTransponder(10753, true, 1, 0, 0)));
  EXPECT_FALSE(SameTransponder(base, MakeTransponder(10747, true, 1, 0, 0)));
  EXPECT_FALSE(SameTransponder(base, MakeTransponder(10750, false, 1, 0, 0)));
  EXPECT_FALSE(SameTransponder(base, MakeTransponder(10750, true, 0, 0, 0)));
}

}  // namespace Routines

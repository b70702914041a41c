// Work that may take long, as on a disk that is far away, without a window that stands still.
#pragma once

#include "base/file.h"
#include "base/point_of_no_return.h"
#include "base/result.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace Ui {

// What is going on in a box of Patiently() now; empty for nothing. No command is to begin meanwhile.
const QString& UnderWay();

// Whether an error means that the user gave the work up, who needs no box to be told.
bool IsGivenUp(const Base::Error& error);

namespace Internal {

// Runs `work` on a thread of its own, which outlives the call where the user gives up; false then.
bool RunPatiently(const QString& doing, std::function<void(Base::PointOfNoReturn&)> work);

Base::Error GivenUp(const QString& doing);

}  // namespace Internal

// The last look at a file before it is replaced: whether that may still be done.
Base::LastLook LookAt(Base::PointOfNoReturn& point);

// What `work` gives, a Result. By half a second most work is done; after that a box says what goes on ("Lettura di
// lista.dat") and lets the user give it up, which is an error ("Lettura di lista.dat annullata"). The work may then go on
// for a while, so it owns all that it uses. It is handed the point after which it can no longer be given up, if it wants that.
template <class Work>
auto Patiently(const QString& doing, Work work) {
  constexpr bool HasPoint = std::is_invocable_v<Work&, Base::PointOfNoReturn&>;
  const auto run = [](Work& does, [[maybe_unused]] Base::PointOfNoReturn& point) {
    if constexpr (HasPoint) {
      return does(point);
    } else {
      return does();
    }
  };
  using Result = decltype(run(work, std::declval<Base::PointOfNoReturn&>()));
  auto result = std::make_shared<std::optional<Result>>();
  const bool done = Internal::RunPatiently(
      doing, [result, run, work = std::make_shared<Work>(std::move(work))](Base::PointOfNoReturn& point) {
        result->emplace(run(*work, point));
      });
  return done ? std::move(**result) : Result(Internal::GivenUp(doing));
}

}  // namespace Ui

// The groups of benchmarks, in the order of the table.
#pragma once

namespace Bench {

void RegisterCore();
void RegisterWindow();
void RegisterStarts();
void RegisterGrowth();

}  // namespace Bench

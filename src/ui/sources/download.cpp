#include "ui/sources/download.h"

#include "ui/kit/late_part.h"

namespace Ui {

Base::Result<std::unique_ptr<Download>> NewDownload(const Download::Limits& limits) {
  const auto make = FunctionOf("trovalis-network", "NewNetworkDownload");
  if (!make) return make.error();
  return std::unique_ptr<Download>(reinterpret_cast<decltype(&NewNetworkDownload)>(*make)(limits));
}

}  // namespace Ui

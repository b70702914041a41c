#include "ui/list/whereabouts.h"

#include "review/duplicates.h"
#include "review/whereabouts.h"
#include "ui/kit/text.h"

namespace Ui {

QString Whereabouts::Of(int slot) const {
  if (revision_ != document_.Revision()) doubles_ = Review::FindDuplicates(document_.Tables(), {});
  revision_ = document_.Revision();
  return Text(Review::Whereabouts(document_.Tables(), slot, doubles_));
}

}  // namespace Ui

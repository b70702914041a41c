#include "ui/window/options_fold.h"

#include "ui/kit/settings_file.h"
#include "ui/session/session.h"

#include <QEvent>
#include <QHeaderView>

namespace Ui {
namespace {

constexpr const char* Key = "Opzioni/Ridotte";
constexpr int FewRows = 12;

}  // namespace

OptionsFold::OptionsFold(Session& session, QObject* parent) : QObject(parent), session_(session) {
  const QVariant wanted = Setting(session.SettingsFile(), Key);
  if (wanted.isValid()) wanted_ = wanted.toBool();
  connect(&session.settings, &SettingsPanel::FoldWanted, this, &OptionsFold::Want);
  connect(&session.settings, &SettingsPanel::Missing, this, [this] { missing_ = true; });
  connect(&session.settings, &SettingsPanel::Clicked, this, &OptionsFold::FitLater);
  connect(&session.view, &ListView::Shown, this, &OptionsFold::FitLater);
  session.view.ListGrid().viewport()->installEventFilter(this);
}

bool OptionsFold::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) FitLater();
  return QObject::eventFilter(watched, event);
}

void OptionsFold::Want(bool folded) {
  wanted_ = folded;
  pressed_ = true;
  missing_ = false;
  KeepSetting(session_.SettingsFile(), Key, folded);
  Fit();
}

// Not from within the layout that tells of a new size.
void OptionsFold::FitLater() {
  if (fits_) return;
  fits_ = true;
  QMetaObject::invokeMethod(this, &OptionsFold::Fit, Qt::QueuedConnection);
}

void OptionsFold::Fit() {
  fits_ = false;
  const bool complete = session_.settings.Chosen().Complete();
  if (complete) missing_ = false;
  const bool byHand = wanted_.value_or(false) && (pressed_ || complete);
  const bool byItself = !wanted_ && complete && ListIsShort();
  session_.settings.Fold(!missing_ && (byHand || byItself));
}

// Beside the groups, whether they are shown now or not.
bool OptionsFold::ListIsShort() const {
  const Grid& grid = session_.view.ListGrid();
  if (session_.view.Current() == View::None) return false;
  const int gained = session_.settings.Folded() ? session_.settings.FoldedAway() : 0;
  return grid.viewport()->height() - gained < FewRows * grid.verticalHeader()->defaultSectionSize();
}

}  // namespace Ui

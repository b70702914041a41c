#include "ui/status_line.h"

#include "base/file.h"
#include "ui/dialogs.h"

#include <QProgressBar>
#include <QStatusBar>

namespace Ui {

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar), result_(new QLabel(&bar)), progress_(new QProgressBar(&bar)) {
  result_->setObjectName("UltimoRisultato");
  result_->setTextFormat(Qt::PlainText);
  result_->setContentsMargins(6, 0, 6, 0);
  result_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  bar.addWidget(result_, 1);

  progress_->setObjectName("ProgressBar1");
  progress_->setAccessibleName("Avanzamento");
  progress_->setMaximumWidth(120);
  progress_->hide();
  bar.addPermanentWidget(progress_);
  unsaved_ = AddPermanent(bar, "ModificheNonSalvate");
  channels_ = AddPermanent(bar, "CanaliUsati");
  transponders_ = AddPermanent(bar, "TransponderUsati");
  output_ = AddPermanent(bar, "FlashOutput");
}

QLabel* StatusLine::AddPermanent(QStatusBar& bar, const char* name) {
  auto* label = new QLabel(&bar);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setContentsMargins(4, 0, 4, 0);
  bar.addPermanentWidget(label);
  return label;
}

void StatusLine::ShowResult(const QString& text) {
  result_->setText(text);
  result_->setToolTip(text.toHtmlEscaped());
}

void StatusLine::ShowList(const Routines::State& state, bool unsaved) {
  unsaved_->setText(unsaved ? "Modifiche non salvate" : "");
  unsaved_->setVisible(unsaved);
  channels_->setText(state.Loaded
                         ? QString("Canali %1 di %2").arg(UsedChannels(state)).arg(state.ChannelCount)
                         : QString("Nessuna flash caricata"));
  transponders_->setText(
      QString("Transponder %1 di %2").arg(UsedTransponders(state)).arg(state.TransponderCount));
  transponders_->setVisible(state.Loaded);

  const QString name =
      state.OutputFlash.empty() ? QString("nessuna") : PathText(Base::FileName(state.OutputFlash));
  constexpr int LongestName = 260;  // pixels; the whole path is in the tip
  output_->setText("Flash di output : " +
                   output_->fontMetrics().elidedText(name, Qt::ElideMiddle, LongestName));
  output_->setToolTip(PathText(state.OutputFlash).toHtmlEscaped());
}

void StatusLine::ShowProgress(int percent) {
  progress_->setValue(percent);
  progress_->setVisible(percent < 100);
  progress_->repaint();
}

}  // namespace Ui

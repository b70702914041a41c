#include "ui/edit/scope_choice.h"

#include "ui/kit/flow_layout.h"
#include "ui/session/session.h"

#include <QRadioButton>

namespace Ui {

ScopeChoice::ScopeChoice(const Session& session, QWidget* parent) : QWidget(parent) {
  setObjectName("Ambito");
  auto* line = new FlowLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  const Routines::State& state = session.document.Tables();
  const FilterBar& filter = session.view.Filter();
  const Edit::Slots selected = session.view.ListGrid().Selected();
  Offer(state, "AmbitoSelezione", "Le righe selezionate", ", nelle righe selezionate", selected);
  if (filter.Asks() && !filter.ForTransponders())
    Offer(state, "AmbitoTrovati", "I trovati", ", fra i trovati", filter.Matches());
  Offer(state, "AmbitoLista", "Tutta la lista", "", Edit::SlotRun(1, Routines::LastOccupied(state)));
  const auto several =
      std::find_if(scopes_.begin(), scopes_.end(), [](const Scope& scope) { return scope.slots.size() > 1; });
  (several == scopes_.end() ? scopes_.back() : *several).choice->setChecked(true);
}

void ScopeChoice::Offer(const Routines::State& state, const char* name, const QString& caption,
                        const QString& where, Edit::Slots slots) {
  const auto channels =
      std::count_if(slots.begin(), slots.end(), [&](int slot) { return !state.Channel(slot).Empty(); });
  auto* choice = new QRadioButton(QString("%1 (%2)").arg(caption).arg(channels), this);
  choice->setObjectName(name);
  choice->setEnabled(channels > 0);
  connect(choice, &QRadioButton::toggled, this, [this](bool checked) {
    if (checked) Q_EMIT Changed();
  });
  layout()->addWidget(choice);
  scopes_.push_back({std::move(slots), where, choice});
}

const ScopeChoice::Scope& ScopeChoice::Current() const {
  const auto chosen = std::find_if(scopes_.begin(), scopes_.end(),
                                   [](const Scope& scope) { return scope.choice->isChecked(); });
  return chosen == scopes_.end() ? scopes_.back() : *chosen;
}

const Edit::Slots& ScopeChoice::Chosen() const { return Current().slots; }

QString ScopeChoice::Where() const { return Current().where; }

}  // namespace Ui

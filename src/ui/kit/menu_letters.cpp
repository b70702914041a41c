#include "ui/kit/menu_letters.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

namespace Ui {
namespace {

QAction* NextWith(const QMenu& menu, const QString& letter) {
  const QList<QAction*> actions = menu.actions();
  const qsizetype here = actions.indexOf(menu.activeAction());
  for (qsizetype step = 1; step <= actions.size(); ++step) {
    QAction* action = actions[(here + step) % actions.size()];
    if (action->isVisible() && action->isEnabled() && action->text().startsWith(letter, Qt::CaseInsensitive))
      return action;
  }
  return nullptr;
}

}  // namespace

void MenuLetters::Follow(QMenu& menu) { menu.installEventFilter(new MenuLetters(&menu)); }

bool MenuLetters::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const QString letter = key->text();
  auto& menu = *qobject_cast<QMenu*>(watched);
  if (key->modifiers() != Qt::NoModifier || letter.size() != 1 || !letter[0].isLetter()) return false;
  QAction* next = NextWith(menu, letter);
  if (next == nullptr) return false;
  menu.setActiveAction(next);
  return true;
}

}  // namespace Ui

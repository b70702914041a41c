#include "ui/session/tool_window.h"

#include "ui/session/control_tips.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QPushButton>

namespace Ui {

ToolWindow::ToolWindow(const char* name, const QString& title, QWidget* parent) : QDialog(parent) {
  setObjectName(name);
  setWindowTitle(title);
  setAttribute(Qt::WA_DeleteOnClose);
}

void ToolWindow::BringUp() {
  show();
  raise();
  activateWindow();
}

void ToolWindow::TakeKeys(const QMainWindow& window, std::initializer_list<CommandName> more) {
  for (const CommandName name : {CommandName("Annulla"), CommandName("Ripeti")})
    addAction(&CommandAction(window, name));
  for (const CommandName name : more) addAction(&CommandAction(window, name));
}

QPushButton* ToolWindow::AddButton(QLayout& row, const char* name, const QString& caption,
                                   const std::function<void()>& run) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  if (run) connect(button, &QPushButton::clicked, this, run);
  row.addWidget(button);
  return button;
}

QLayout* ToolWindow::WithClose(QLayout* left, const char* name) {
  auto* row = new QHBoxLayout;
  row->addLayout(left, 1);
  row->setAlignment(AddButton(*row, name, "Chiudi", [this] { close(); }), Qt::AlignBottom);
  return row;
}

void ToolWindow::showEvent(QShowEvent* event) {
  ShowTips(*this);
  QDialog::showEvent(event);
}

}  // namespace Ui

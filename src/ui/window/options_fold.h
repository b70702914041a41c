// When the option groups are one line: as the user has last wanted it or, while nobody has said so, where they would leave
// too little room for the list.
#pragma once

#include <QObject>

#include <optional>

namespace Ui {

struct Session;

class OptionsFold : public QObject {
  Q_OBJECT

 public:
  OptionsFold(Session& session, QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Want(bool folded);
  void FitLater();
  void Fit();
  [[nodiscard]] bool ListIsShort() const;

  Session& session_;
  std::optional<bool> wanted_;  // by the user, at any time
  bool pressed_ = false;        // the button, since the program was started
  bool missing_ = false;        // a command has pointed out a choice that is still to be made
  bool fits_ = false;           // soon
};

}  // namespace Ui

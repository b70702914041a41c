// The list that the window works on. Every change of it goes through one gate, so that no view is ever out of
// date and a command that changed nothing leaves no trace.
#pragma once

#include "model/routines.h"

#include <QObject>

#include <memory>

namespace Ui {

class Document : public QObject {
  Q_OBJECT

 public:
  explicit Document(QObject* parent = nullptr);

  [[nodiscard]] const Routines::State& Tables() const { return *state_; }

  // Runs `operation` on the tables and tells the views where it changed any. Returns what `operation`
  // returns.
  template <class Operation>
  auto Apply(Operation operation) {
    const auto before = std::make_unique<Routines::State>(*state_);
    auto result = operation(*state_);
    if (*before != *state_) emit Changed();
    return result;
  }

  // Whether the tables hold anything that no flash image gives back.
  [[nodiscard]] bool Unsaved() const;
  // The tables are as an image on the disk has them.
  void MarkSaved();

 signals:
  void Changed();

 private:
  std::unique_ptr<Routines::State> state_;
  std::unique_ptr<Routines::State> saved_;
};

}  // namespace Ui

#include "ui/document.h"

namespace Ui {

using Routines::State;

Document::Document(QObject* parent)
    : QObject(parent), state_(std::make_unique<State>()), saved_(std::make_unique<State>()) {}

bool Document::Unsaved() const {
  if (saved_ == nullptr) return true;
  const auto sameRecord = [](const auto& one, const auto& other) { return one.record == other.record; };
  return state_->ChannelTable != saved_->ChannelTable ||
         state_->TransponderCount != saved_->TransponderCount ||
         state_->FavouritesBlock != saved_->FavouritesBlock ||
         !std::equal(state_->TransponderTable.begin(), state_->TransponderTable.end(),
                     saved_->TransponderTable.begin(), sameRecord);
}

void Document::Undo() {
  if (history_.Undo(*state_)) Q_EMIT Changed();
}

void Document::Redo() {
  if (history_.Redo(*state_)) Q_EMIT Changed();
}

void Document::MarkSaved() {
  saved_ = std::make_unique<State>(*state_);
  Q_EMIT Changed();
}

void Document::MarkUnsaved() {
  saved_.reset();
  Q_EMIT Changed();
}

}  // namespace Ui

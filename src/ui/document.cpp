#include "ui/document.h"

namespace Ui {

using Routines::State;

Document::Document(QObject* parent)
    : QObject(parent), state_(std::make_unique<State>()), saved_(std::make_unique<State>()) {}

bool Document::Unsaved() const {
  const auto sameRecord = [](const auto& one, const auto& other) { return one.record == other.record; };
  return state_->ChannelTable != saved_->ChannelTable ||
         state_->TransponderCount != saved_->TransponderCount ||
         state_->FavouritesBlock != saved_->FavouritesBlock ||
         !std::equal(state_->TransponderTable.begin(), state_->TransponderTable.end(),
                     saved_->TransponderTable.begin(), sameRecord);
}

void Document::MarkSaved() {
  *saved_ = *state_;
  emit Changed();
}

}  // namespace Ui

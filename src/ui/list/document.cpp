#include "ui/list/document.h"

#include "base/file.h"

namespace Ui {

using Routines::State;

namespace {

constexpr std::size_t MostSavedLists = 20;

}  // namespace

Document::Document(QObject* parent) : QObject(parent), state_(std::make_unique<State>()) {}

void Document::Keep(const std::string& label, Edit::History::Kind kind, std::unique_ptr<State> before,
                    const Edit::Clipboard& copied) {
  const bool same = *before == *state_;
  if (same && copied == clipboard_) return;
  if (!same) history_.Push(label, kind, std::move(before), copied, clipboard_);
  Tell();
}

void Document::Tell() {
  ++revision_;
  Q_EMIT Changed();
}

bool Document::Unsaved() const {
  if (!state_->Loaded) return false;
  const auto found = saved_.find(state_->ListNumber);
  if (found == saved_.end()) return true;
  const State& saved = *found->second.state;
  const auto sameRecord = [](const auto& one, const auto& other) { return one.record == other.record; };
  return state_->ChannelTable != saved.ChannelTable || state_->TransponderCount != saved.TransponderCount ||
         state_->FavouritesBlock != saved.FavouritesBlock ||
         !std::equal(state_->TransponderTable.begin() + 1, state_->TransponderTable.end(),
                     saved.TransponderTable.begin() + 1, sameRecord);
}

void Document::Undo(int steps) {
  bool taken = false;
  for (; steps > 0 && history_.Undo(state_, clipboard_); --steps) taken = true;
  if (taken) Tell();
}

void Document::Redo(int steps) {
  bool taken = false;
  for (; steps > 0 && history_.Redo(state_, clipboard_); --steps) taken = true;
  if (taken) Tell();
}

void Document::MarkSaved(const std::string& path) {
  saved_[state_->ListNumber] = {Base::ResolvedPath(path), std::make_unique<State>(*state_)};
  if (saved_.size() > MostSavedLists) saved_.erase(saved_.begin());
  Tell();
}

void Document::ForgetSaved(const std::string& path) {
  std::erase_if(
      saved_, [target = Base::ResolvedPath(path)](const auto& entry) { return entry.second.path == target; });
}

void Document::MarkUnsaved() {
  saved_.erase(state_->ListNumber);
  Tell();
}

}  // namespace Ui

// The differences between two lists as rows with a tick.
#pragma once

#include "review/compare.h"

#include <QAbstractTableModel>

namespace Ui {

class CompareModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column : int { Tick, Kind, Here, There, Details, Columns };

  // How the two sides are named.
  struct Wording {
    const char* onlyHere;
    const char* onlyThere;
    const char* there;  // the title of its column
  };

  CompareModel(const Wording& wording, QObject* parent) : QAbstractTableModel(parent), wording_(wording) {}

  // Shows the rows that have one of `kinds`. Both lists must live as long as they are shown. Ticks stay on the channels
  // that are different in the same way as before.
  void Show(const Routines::State& here, const Routines::OtherList& there, Review::Comparison found,
            Review::MarkSet kinds);

  [[nodiscard]] const Review::Comparison& Found() const { return found_; }
  // With the marks of the kinds shown.
  [[nodiscard]] Review::Difference At(int row) const { return OfKinds(found_.differences[Place(row)]); }
  [[nodiscard]] int Count(Review::Mark mark) const;
  // "Solo nell'altra"
  [[nodiscard]] QString KindText(Review::Mark mark) const;

  // Of the rows shown, with the marks of the kinds shown: what is not shown is not taken over.
  [[nodiscard]] std::vector<Review::Difference> Ticked() const;
  void SetTicks(const std::vector<int>& rows, bool on);
  [[nodiscard]] bool IsTicked(int row) const { return ticks_[Place(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 Q_SIGNALS:
  void TicksChanged();

 private:
  [[nodiscard]] std::size_t Place(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  [[nodiscard]] Review::Difference OfKinds(Review::Difference difference) const {
    difference.marks &= kinds_;
    return difference;
  }
  [[nodiscard]] const Routines::ChannelRecord& RecordAt(const Review::Difference& difference,
                                                        int column) const;
  [[nodiscard]] QString ChannelText(const Review::Difference& difference, int column) const;
  [[nodiscard]] QString CellText(const Review::Difference& difference, int column) const;
  [[nodiscard]] std::string Identity(const Review::Difference& difference) const;

  Wording wording_;
  const Routines::State* here_ = nullptr;
  const Routines::OtherList* there_ = nullptr;
  Review::MarkSet kinds_;
  Review::Comparison found_;
  std::vector<std::size_t> rows_;  // the differences shown
  std::vector<bool> ticks_;        // of all differences
  std::vector<std::string> identities_;
};

}  // namespace Ui

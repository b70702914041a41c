// The other side of a comparison: an image that is read into memory and never written, the list on the right, or an order.
#pragma once

#include "review/order_match.h"
#include "ui/session/session.h"

#include <QDateTime>

namespace Ui {

class OtherSide {
 public:
  // Another flash is read as it would be opened; the file on the disk is the one that the list is written to, or came
  // from; rows are those of the SDX table; an order says nothing but that.
  enum class Kind { Another, OnDisk, Rows, Order, Csv };

  // `symbolRates` is the table that another flash is read by; the file on the disk has the list's own.
  explicit OtherSide(Kind kind, std::string path = {}, std::string symbolRates = {})
      : kind_(kind), path_(std::move(path)), symbolRates_(std::move(symbolRates)) {}

  // A file for spreadsheets that somebody has worked on.
  OtherSide(Routines::OtherList csv, QString name)
      : kind_(Kind::Csv), name_(std::move(name)), list_(std::move(csv)) {}
  // `name` is that of its file or list.
  OtherSide(Routines::Order order, QString name)
      : kind_(Kind::Order), name_(std::move(name)), order_(std::move(order)) {}

  // Where a list is on the disk; empty where it is nowhere.
  static std::string PathOnDisk(const Routines::State& state) {
    return state.OutputFlash.empty() ? state.InputFlash : state.OutputFlash;
  }

  // Reads its file, which the user may give up.
  Base::Outcome Read(const Session& session);
  // Reads the file on the disk again where it has been written to, or where the list is now in another one.
  void Follow(const Session& session);

  // The file on the disk is compared byte for byte, as a save would write it; rows as they are now in their table.
  Review::Comparison Compare(const Session& session);

  [[nodiscard]] const Routines::OtherList& List() const { return list_; }
  [[nodiscard]] Kind What() const { return kind_; }
  // Of an order, from the next comparison on.
  void Number(Review::Numbering numbering) { numbering_ = numbering; }
  [[nodiscard]] bool OnDisk() const { return kind_ == Kind::OnDisk; }
  // "demo.dat, letti 999 di 3700 canali"
  [[nodiscard]] QString Title() const;

 private:
  [[nodiscard]] const char* BoxTitle(const Session& session) const;
  void Take(const Session& session, Base::ByteView image);
  [[nodiscard]] int Capacity(const Routines::Settings& settings, Base::ByteView image) const;
  [[nodiscard]] QDateTime Written() const;

  Kind kind_;
  std::string path_;
  std::string symbolRates_;
  QDateTime written_;
  int channelsRead_ = 0;
  int channelsInImage_ = 0;
  QString name_;
  Routines::Order order_;
  Review::Numbering numbering_ = Review::Numbering::Together;
  Routines::OtherList list_;
};

}  // namespace Ui

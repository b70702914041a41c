// A file that holds an order of channels: asked for, read, and refused where it holds none.
#pragma once

#include "model/order.h"
#include "ui/session/session.h"

namespace Ui {

struct OrderFile {
  QString name;  // without its folder
  Routines::Order order;
};

// Nothing where the user gives up or the file is no list of channels, which a box has told then.
std::optional<OrderFile> AskOrder(Session& session);

// "elenco.txt: 3 righe non sono canali"; empty where all are.
QString UnreadableIn(const OrderFile& file);

}  // namespace Ui

// Entries of list boxes that are blank in a file read "(vuota)", so that one sees that there is something to choose.
#pragma once

class QComboBox;
class QListWidget;

namespace Ui {

// Of the entries that the list has now. What is chosen by them stays blank.
void NameBlankEntries(QListWidget& list);
void NameBlankEntries(QComboBox& list);

}  // namespace Ui

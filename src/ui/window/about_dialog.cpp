#include "ui/window/about_dialog.h"

#include "ui/kit/breaking_label.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/themed_icon.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QUrl>

namespace Ui {

AboutDialog::AboutDialog(const QString& programFolder, QWidget* parent) : QDialog(parent) {
  setObjectName("FinestraAbout");
  setWindowTitle("About");
  auto* icon = new QLabel(this);
  icon->setPixmap(IconNamed("trovalis").pixmap(72, 72));
  auto* name = new QLabel("Trovalis", this);
  QFont large = name->font();
  large.setBold(true);
  large.setPointSizeF(large.pointSizeF() * 1.8);
  name->setFont(large);
  auto* version = new QLabel("Versione " TROVALIS_VERSION, this);
  version->setObjectName("Versione");
  auto* text = new QLabel(
      "Editor delle liste canali dei ricevitori satellitari digitali: apre l'immagine della flash, ne mostra "
      "canali e transponder e li riscrive nell'immagine del ricevitore senza toccare un byte che non conosce."
      "\n\nCopyright © 2026 gli autori di Trovalis. Software libero, con licenza MIT e senza alcuna garanzia."
      "\n\nRealizzato con Qt " QT_VERSION_STR
      ", usato come libreria condivisa con licenza LGPL 3: grazie a chi lo scrive.",
      this);
  text->setObjectName("Descrizione");
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const int room = screen()->availableGeometry().width() - icon->sizeHint().width() - 3 * 18;
  const int width = std::min(std::max(420, Letters(*text, 50)), room);
  text->setFixedWidth(width);
  auto* folder = new BreakingLabel("Cartella del programma: " + programFolder, width, this);
  folder->setObjectName("CartellaProgramma");

  auto* buttons = new QDialogButtonBox(this);
  auto* guide = buttons->addButton("Apri la guida", QDialogButtonBox::AcceptRole);
  guide->setObjectName("ApriGuida");
  guide->setToolTip("Apre la guida del programma (F1)");
  guide->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* open = buttons->addButton("Apri la cartella", QDialogButtonBox::ActionRole);
  open->setObjectName("ApriCartella");
  open->setToolTip("Mostra la cartella con i file del programma");
  connect(open, &QPushButton::clicked, this,
          [programFolder] { QDesktopServices::openUrl(QUrl::fromLocalFile(programFolder)); });
  auto* toolkit = buttons->addButton("Informazioni su Qt", QDialogButtonBox::ActionRole);
  toolkit->setObjectName("InformazioniQt");
  connect(toolkit, &QPushButton::clicked, this, [this] { QMessageBox::aboutQt(this); });
  auto* close = buttons->addButton("Chiudi", QDialogButtonBox::RejectRole);
  close->setObjectName("Chiudi");
  close->setDefault(true);
  close->setFocus();
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(18, 18, 18, 12);
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(10);
  grid->addWidget(icon, 0, 0, 4, 1, Qt::AlignTop);
  grid->addWidget(name, 0, 1);
  grid->addWidget(version, 1, 1);
  grid->addWidget(text, 2, 1);
  grid->setRowStretch(2, 1);
  grid->addWidget(folder, 3, 1);
  grid->addWidget(buttons, 4, 0, 1, 2);
  setFixedSize(sizeHint());
}

}  // namespace Ui

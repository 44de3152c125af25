#include "ChooserWindow.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include "ControlBinding.h"
#include "DirectoryTree.h"
#include "LineLabel.h"
#include "PanelParts.h"
#include "frmDialog.h"

namespace quorb {

namespace {

constexpr int kStartWidth = 680;
constexpr int kStartHeight = 440;

QString Text(const std::string& text) {
  return QString::fromStdString(text);
}

/// The list of drives, which is no choice where there is only one.
QComboBox* MakeDrives(QWidget& parent, QLabel& label) {
  auto* widget = new QComboBox(&parent);
  DriveBox& drives = frmDialog().Lecteur1;
  TieWidget(*widget, drives);
  drives.refresh = [widget, &label, &drives] {
    const QSignalBlocker block(widget);
    widget->clear();
    for (const std::string& drive : drives.items.Get())
      widget->addItem(Text(drive));
    widget->setCurrentText(Text(drives.drive));
    widget->setVisible(widget->count() > 1);
    label.setVisible(widget->count() > 1);
  };
  drives.refresh();
  QObject::connect(
      widget, &QComboBox::currentTextChanged, widget,
      [&drives](const QString& drive) { drives.drive = drive.toStdString(); }, Qt::QueuedConnection);
  return widget;
}

QListWidget* MakeFiles(QWidget& parent) {
  auto* widget = new QListWidget(&parent);
  BindList(*widget, frmDialog().Fichier1, Text);
  return widget;
}

/// A label above a widget, which a screen reader calls by it.
void AddLabelled(QGridLayout& grid, QLabel& label, QWidget& widget, int row, int column) {
  label.setBuddy(&widget);
  grid.addWidget(&label, row, column);
  grid.addWidget(&widget, row + 1, column);
}

QHBoxLayout* MakeButtons(QWidget& parent) {
  DialogWindow& dialog = frmDialog();
  auto* buttons = new QHBoxLayout;
  auto* description = new LineLabel(&parent);
  description->setAccessibleName("Length and date of the file");
  BindLine(*description, dialog.Text1);
  buttons->addWidget(description, 1);
  for (Button* button : {&dialog.Commande1, &dialog.Commande2}) {
    CommandButton* const widget = MakeCommand(parent, *button);
    widget->setDefault(button == &dialog.Commande1);
    buttons->addWidget(widget);
  }
  return buttons;
}

}  // namespace

ChooserWindow::ChooserWindow(QWidget* parent) : QDialog(parent) {
  DialogWindow& dialog = frmDialog();
  auto* grid = new QGridLayout(this);
  QLabel* const driveLabel = MakeLabel(*this, dialog.driveLabel);
  AddLabelled(*grid, *driveLabel, *MakeDrives(*this, *driveLabel), 0, 0);
  auto* tree = new DirectoryTree(dialog.Répertoire1, this);
  AddLabelled(*grid, *MakeLabel(*this, dialog.directoryLabel), *tree, 2, 0);
  files_ = MakeFiles(*this);
  AddLabelled(*grid, *MakeLabel(*this, dialog.fileLabel), *files_, 2, 1);
  auto* lines = new QGridLayout;
  auto* fileName = new QLabel("Selected file", this);
  QLineEdit* const file = MakeWideField(*this, dialog.Filename, "");
  fileName->setBuddy(file);
  lines->addWidget(fileName, 0, 0);
  lines->addWidget(file, 0, 1);
  QLabel* const filterName = MakeLabel(*this, dialog.filterLabel);
  QLineEdit* const filter = MakeWideField(*this, dialog.Filter, "");
  filterName->setBuddy(filter);
  lines->addWidget(filterName, 1, 0);
  lines->addWidget(filter, 1, 1);
  grid->addLayout(lines, 4, 0, 1, 2);
  grid->addLayout(MakeButtons(*this), 5, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(3, 1);
  resize(kStartWidth, kStartHeight);
  setWindowTitle(Text(dialog.form.caption));
  dialog.form.refresh = [this] {
    if (!frmDialog().form.visible) done(0);
  };
  dialog.runModal = [this] { exec(); };
}

void ChooserWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  files_->setFocus();
}

void ChooserWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  frmDialog().Commande2_Click();
}

void ChooserWindow::reject() {
  frmDialog().Commande2_Click();
}

}  // namespace quorb

#include "PanelWidget.h"

#include <QComboBox>
#include <QGridLayout>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "ColourButton.h"
#include "ControlBinding.h"
#include "EntryField.h"
#include "FloatingPanel.h"
#include "PanelParts.h"
#include "PlotBar.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kMargin = 8;
constexpr int kRowSpacing = 4;
constexpr int kColumnSpacing = 10;
constexpr int kFactorDigits = 6;
constexpr int kColourDigits = 4;
constexpr std::size_t kCubicFactor = 4;
constexpr std::size_t kColourTitle = 4, kFirstColour = 5, kDirectoryLabel = 11, kSizeLabel = 12,
                      kKeywordLabel = 13;
constexpr int kColumns = 3;
constexpr int kColours = 6;
constexpr int kColourRows = 3;

QGridLayout* MakeGrid() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kColumnSpacing);
  grid->setVerticalSpacing(kRowSpacing);
  return grid;
}

// ---- check boxes ------------------------------------------------------------------------------------------

void AddChecks(QGridLayout& grid, QWidget& parent) {
  MainWindow& window = *frmMain;
  // Row by row: the keyboard goes through them as they are read.
  CheckBox* const rows[][kColumns] = {{&window.Check1[0], &window.Check1[3], &window.Check1[4]},
                                      {&window.Check1[8], &window.Check1[1], &window.Check1[6]},
                                      {&window.Check1[9], &window.Check1[5], &window.Check9},
                                      {&window.Check10, &window.Check1[2], &window.Check1[7]},
                                      {&window.Check5, &window.Check11, &window.Check1[10]}};
  int row = 0;
  for (const auto& boxes : rows) {
    for (int column = 0; column < kColumns; ++column)
      grid.addWidget(MakeCheck(parent, *boxes[column]), row, column);
    ++row;
  }
}

// ---- satellite --------------------------------------------------------------------------------------------

QComboBox* MakeShapes(QWidget& parent) {
  auto* list = new QComboBox(&parent);
  ComboBox& control = frmMain->Combo2;
  TieWidget(*list, control);
  list->setAccessibleName("Shape of the satellite");
  control.refresh = [list, &control] {
    const QSignalBlocker block(list);
    list->setVisible(control.visible);
    list->setEnabled(control.enabled);
    list->setToolTip(TipText(control.toolTip));
    list->clear();
    for (const std::string& entry : control.items.Get())
      list->addItem(QString::fromStdString(entry));
    list->setCurrentIndex(list->findText(QString::fromStdString(control.text)));
  };
  control.Refresh();
  control.takeFocus = [list] { list->setFocus(); };
  QObject::connect(list, &QComboBox::textActivated, list,
                   [&control](const QString& text) { control.text = text.toStdString(); });
  return list;
}

void AddSatellite(QGridLayout& grid, QWidget& parent, int row) {
  MainWindow& window = *frmMain;
  grid.addWidget(MakeCheck(parent, window.Check3), row, 0);
  grid.addWidget(MakeShapes(parent), row, 1);
  grid.addWidget(MakeCheck(parent, window.Check8), row, 2);
  ++row;
  grid.addWidget(MakeCheck(parent, window.Check6), row, 0);
  grid.addWidget(MakeCheck(parent, window.Check4), row, 1);
  auto* unit = new QLabel(&parent);
  unit->setAccessibleName("Unit of length");
  BindLine(*unit, window.Text15);
  grid.addWidget(unit, row, 2);
  ++row;
  auto* size = new PlotBar(&parent);
  size->setAccessibleName("Satellite size");
  BindBar(*size, window.HScroll3);
  grid.addWidget(MakeLabel(parent, window.Label1[kSizeLabel]), row, 0);
  grid.addWidget(size, row, 1, 1, 2);
  ++row;
  grid.addWidget(MakeWideField(parent, window.Text13, "Thrusters: places and directions"), row, 0, 1,
                 kColumns);
}

QLayout* MakeSwitches(QWidget& parent) {
  constexpr int kGapRow = 5;
  QGridLayout* const grid = MakeGrid();
  AddChecks(*grid, parent);
  grid->setRowMinimumHeight(kGapRow, kColumnSpacing);
  AddSatellite(*grid, parent, kGapRow + 1);
  for (int column = 0; column < kColumns; ++column)
    grid->setColumnStretch(column, 1);
  return grid;
}

// ---- numbers and names ------------------------------------------------------------------------------------

void AddFactor(QGridLayout& grid, QWidget& parent, std::size_t index, int row, int column) {
  TextBox& box = frmMain->Text4[index];
  auto* field = new EntryField(kFactorDigits, &parent);
  BindField(*field, box);
  QLabel* const label = MakeLabel(parent, frmMain->Label1[index]);
  label->setBuddy(field);
  grid.addWidget(label, row, column);
  grid.addWidget(field, row, column + 1);
}

QLayout* MakeFactors(QWidget& parent) {
  QGridLayout* const grid = MakeGrid();
  AddFactor(*grid, parent, 0, 0, 0);
  AddFactor(*grid, parent, 2, 0, 3);
  AddFactor(*grid, parent, 1, 1, 0);
  auto* cubic = new EntryField(kFactorDigits, &parent);
  cubic->setAccessibleName("Range of the cubic view");
  BindField(*cubic, frmMain->Text4[kCubicFactor]);
  grid->addWidget(KeepingItsPlace(cubic), 1, 2);
  AddFactor(*grid, parent, 3, 1, 3);
  grid->setColumnStretch(3, 1);
  return grid;
}

QLayout* MakeNames(QWidget& parent) {
  MainWindow& window = *frmMain;
  QGridLayout* const grid = MakeGrid();
  QLabel* const directoryLabel = MakeLabel(parent, window.Label1[kDirectoryLabel]);
  QLineEdit* const directory = MakeWideField(parent, window.Text6, "");
  directoryLabel->setBuddy(directory);
  grid->addWidget(directoryLabel, 0, 0, 1, 2);
  grid->addWidget(directory, 0, 2, 1, 2);
  int column = 0;
  for (const auto& [text, box] :
       {std::pair{"Earth picture", &window.Text7}, std::pair{"Moon picture", &window.Text8}}) {
    auto* label = new QLabel(text, &parent);
    QLineEdit* const field = MakeWideField(parent, *box, text);
    label->setBuddy(field);
    grid->addWidget(label, 1, column);
    grid->addWidget(field, 1, column + 1);
    column += 2;
  }
  return grid;
}

// ---- extended panel ---------------------------------------------------------------------------------------

void AddColour(QGridLayout& grid, QWidget& parent, int colour) {
  constexpr int kWidgetsToAColour = 5;
  const char* const parts[] = {"red", "green", "blue"};
  const int row = 1 + colour % kColourRows;
  int column = colour / kColourRows * kWidgetsToAColour;
  Label& label = frmMain->Label1[kFirstColour + static_cast<std::size_t>(colour)];
  grid.addWidget(MakeLabel(parent, label), row, column++);
  const QString name = QString::fromStdString(label.caption);
  std::array<TextBox*, 3> boxes{};
  for (std::size_t part = 0; part < boxes.size(); ++part) {
    boxes[part] = &frmMain->Text5[3 * static_cast<std::size_t>(colour) + part];
    auto* field = new EntryField(kColourDigits, &parent);
    field->setAccessibleName(name + ", " + parts[part]);
    BindField(*field, *boxes[part]);
    grid.addWidget(field, row, column++);
  }
  grid.addWidget(new ColourButton(name, boxes, &parent), row, column);
}

QLayout* MakeColours(QWidget& parent) {
  QGridLayout* const grid = MakeGrid();
  grid->setHorizontalSpacing(kColumnSpacing / 2);
  grid->addWidget(MakeLabel(parent, frmMain->Label1[kColourTitle]), 0, 0, 1, 5);
  for (int colour = 0; colour < kColours; ++colour)
    AddColour(*grid, parent, colour);
  QLabel* const label = MakeLabel(parent, frmMain->Label1[kKeywordLabel]);
  QLineEdit* const keyword = MakeWideField(parent, frmMain->Text9, "");
  label->setBuddy(keyword);
  grid->addWidget(label, 1 + kColourRows, 0, 1, 3);
  grid->addWidget(keyword, 1 + kColourRows, 3, 1, 7);
  return grid;
}

QLayout* MakeExtension(QWidget& parent) {
  auto* row = new QHBoxLayout;
  row->addWidget(MakeCheck(parent, frmMain->Check2));
  row->addWidget(MakeCheck(parent, frmMain->Check7));
  row->addStretch(1);
  return row;
}

QLayout* MakeButtons(FloatingPanel& panel) {
  MainWindow& window = *frmMain;
  auto* row = new QHBoxLayout;
  row->addWidget(MakeCommand(panel, window.Command1));
  row->addWidget(MakeCommand(panel, window.Command3));
  row->addStretch(1);
  QPushButton* const close = MakeCommand(panel, window.Command2);
  panel.SetHoverButton(*close, window.Command2);
  row->addWidget(close);
  return row;
}

}  // namespace

QWidget* MakeOptionPanel(QWidget& canvas) {
  auto* panel = new FloatingPanel(frmMain->Options, canvas);
  auto* whole = new QVBoxLayout(panel);
  whole->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  whole->setSpacing(kRowSpacing);
  whole->addWidget(MakePanelTitle(*panel, frmMain->Options));

  // A screen that is too low for the panel still reaches everything.
  auto* area = new QScrollArea(panel);
  auto* inside = new QWidget;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(inside);
  auto* sections = new QVBoxLayout(inside);
  sections->setContentsMargins(0, 0, 0, 0);
  sections->setSpacing(kRowSpacing);
  for (QLayout* section : {MakeSwitches(*inside), MakeFactors(*inside), MakeNames(*inside),
                           MakeExtension(*inside), MakeColours(*inside)}) {
    sections->addLayout(section);
    sections->addStretch(1);
  }
  whole->addWidget(area, 1);
  whole->addLayout(MakeButtons(*panel));
  panel->WatchPointer();
  return panel;
}

}  // namespace quorb

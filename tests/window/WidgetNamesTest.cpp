#include <set>

#include "ControlNames.h"
#include "DrivenWindow.h"

namespace quorb {
namespace {

using WidgetNames = DrivenWindow;

TEST_F(WidgetNames, TheMovieWindowsWidgetsCarryTheNamesOfItsControls) {
  OpenSmallPlot();
  const QWidget& movie = Find("frmVideo");
  EXPECT_TRUE(movie.isWindow());
  for (const NamedControl& named : NamedControls(frmVideo())) {
    if (named.name == "frmVideo") continue;
    const QString name = QString::fromStdString("frmVideo." + named.name);
    EXPECT_NE(movie.findChild<QWidget*>(name), nullptr) << named.name;
  }
}

TEST_F(WidgetNames, TheChoosersWidgetsCarryTheNamesOfItsControls) {
  OpenSmallPlot();
  // What is for the caller, frames the views, or belongs to the view for a printer has no widget.
  const std::set<std::string> withoutWidget = {
      "frmDialog",   "Cadre1",    "Cadre2",         "ListeModifiable1", "InitDir",
      "InitJustDir", "Action",    "Lecteur2",       "Fichier2",         "Répertoire2",
      "Commande3",   "Commande4", "PrinterDefault", "Texte2",           "Texte3"};
  const QWidget& chooser = Find("frmDialog");
  EXPECT_TRUE(chooser.isWindow());
  for (const NamedControl& named : NamedControls(frmDialog())) {
    const QString name = QString::fromStdString("frmDialog." + named.name);
    EXPECT_EQ(chooser.findChild<QWidget*>(name) == nullptr, withoutWidget.contains(named.name)) << named.name;
  }
}

TEST_F(WidgetNames, AControlWhoseWidgetIsGoneIsGivenUp) {
  OpenSmallPlot();
  window.reset();
  int held = 0;
  for (const NamedControl& named : NamedControls(*frmMain)) {
    const Control& control = *std::visit([](auto* any) { return static_cast<Control*>(any); }, named.control);
    if (control.refresh || control.takeFocus) ADD_FAILURE() << named.name;
    ++held;
  }
  EXPECT_GT(held, 100);
  frmMain->Text14.text = "nobody shows it";
}

}  // namespace
}  // namespace quorb

#include "QtDesktop.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>

namespace quorb {

void QtDesktop::ShowDirectory(const std::string& directory) {
  QProcess opener;
  opener.setProgram("xdg-open");
  opener.setArguments({QString::fromStdString(directory)});
  opener.setStandardOutputFile(QProcess::nullDevice());
  opener.setStandardErrorFile(QProcess::nullDevice());
  opener.startDetached();
}

int QtDesktop::CopyText(const std::string& text) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  clipboard.clear();
  clipboard.setText(QString::fromStdString(text));
  return clipboard.text().toStdString() == text ? kFaultNone : kFaultClipboard;
}

}  // namespace quorb

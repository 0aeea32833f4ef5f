#include "filechoice.h"

#include <QFileDialog>

namespace {

constexpr const char *textFiles = "Text Files (*.txt)";

} // namespace

QStringList FileDialogs::files(const QString &filter)
{
    QFileDialog dialog(&window);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilter(filter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QString FileDialogs::toOpen(const QString &title)
{
    return QFileDialog::getOpenFileName(&window, title, ".", textFiles);
}

QString FileDialogs::toSave(const QString &title, const QString &suggestion)
{
    QFileDialog dialog(&window, title, QFileInfo(suggestion).path(), textFiles);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("txt");
    dialog.selectFile(QFileInfo(suggestion).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

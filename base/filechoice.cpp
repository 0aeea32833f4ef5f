#include "filechoice.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QUrl>

namespace {

constexpr const char *textFiles = "Text Files (*.txt)";

// The shipped looks of the kind that is asked for, where there are any; then the player's own
// places.
QList<QUrl> places(const QString &title, const QList<QUrl> &kept)
{
    QList<QUrl> urls;
    const QDir looks(QCoreApplication::applicationDirPath() + "/" KESTRIX_LOOKS);
    for (const QString &folder : looks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (title.contains(folder.section(' ', 0, 0)) && folder.endsWith("Looks"))
            urls += QUrl::fromLocalFile(QDir::cleanPath(looks.filePath(folder)));
    }
    urls << QUrl::fromLocalFile(QDir::homePath()) << QUrl::fromLocalFile(QDir::currentPath());
    for (const QUrl &url : kept) {
        if (!urls.contains(url))
            urls << url;
    }
    return urls;
}

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
    QFileDialog dialog(&window, title, ".", textFiles);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // That of a desktop would not show the looks.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    const QList<QUrl> kept = dialog.sidebarUrls();
    dialog.setSidebarUrls(places(title, kept));
    const bool chosen = dialog.exec() == QDialog::Accepted;
    // Qt keeps the side bar for the dialogs of all programs.
    dialog.setSidebarUrls(kept);
    return chosen ? dialog.selectedFiles().value(0) : QString();
}

QString FileDialogs::toSave(const QString &title, const QString &suggestion)
{
    QFileDialog dialog(&window, title, QFileInfo(suggestion).path(), textFiles);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("txt");
    dialog.selectFile(QFileInfo(suggestion).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

#include "filechoice.h"

#include <QFileDialog>

QStringList chooseFiles(QWidget &window, const QString &filter)
{
    QFileDialog dialog(&window);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilter(filter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

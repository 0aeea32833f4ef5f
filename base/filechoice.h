#pragma once

#include <QStringList>

class QWidget;

// Asks the player for files. An empty answer is Cancel.
class FileChoice
{
public:
    virtual ~FileChoice() = default;
    // Files of a kind, such as "Audio(*wav)"; the player may mark several.
    virtual QStringList files(const QString &filter) = 0;
    virtual QString toOpen(const QString &title) = 0;
    // Adds ".txt" where no ending is typed, and asks before a file is replaced.
    virtual QString toSave(const QString &title, const QString &suggestion) = 0;
};

// By dialogs of the window. Tests hand the program a choice of their own.
class FileDialogs : public FileChoice
{
public:
    explicit FileDialogs(QWidget &mainWindow) : window(mainWindow) {}

    QStringList files(const QString &filter) override;
    QString toOpen(const QString &title) override;
    QString toSave(const QString &title, const QString &suggestion) override;

private:
    QWidget &window;
};

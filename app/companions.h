#pragma once

#include <QObject>
#include <memory>
#include <vector>

class QAbstractButton;
class QWidget;
class openingWindow;

// The five companion windows and how their buttons lead from one to another. They
// are no children of the main window, so each counts as a window of its own when Qt
// asks whether the last one has closed. The four guides that the opening window leads
// to are built when first asked for, since most starts need none of them.
class Companions : public QObject
{
    Q_OBJECT

public:
    explicit Companions(QWidget &usedWindow);
    ~Companions() override;

    void showOpening();
    QWidget &opening();
    void closeGuides();
    void closeAll();

signals:
    void startClicked(); // before the opening window closes

private:
    enum class OnClose { StaysBehind, ComesBack }; // what the opening window does

    template <class Guide>
    void leadTo(QAbstractButton *opener, OnClose onClose);
    template <class Guide>
    QWidget *build(OnClose onClose);

    QWidget &mainWindow;
    std::unique_ptr<openingWindow> openingDialog;
    std::vector<std::unique_ptr<QWidget>> guides;
};

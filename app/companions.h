#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QWidget;
class openingWindow;

// The five companion windows and how their buttons lead from one to another. They
// are no children of the main window, so each counts as a window of its own when Qt
// asks whether the last one has closed. All are built when first asked for: the four
// guides are not needed by most starts, and the opening window not by an unseen one.
class Companions : public QObject
{
    Q_OBJECT

public:
    using WindowMaker = std::function<std::unique_ptr<QWidget>()>;

    // The instructions draw their map from what freshWindow makes.
    Companions(QWidget &usedWindow, WindowMaker freshWindow);
    ~Companions() override;

    void showOpening();
    QWidget &opening();
    void closeGuides();
    void closeAll();

signals:
    void startClicked(); // before the opening window closes

private:
    enum class OnClose { StaysBehind, ComesBack }; // what the opening window does

    template <class Guide, class... Needs>
    void leadTo(QAbstractButton *opener, OnClose onClose, Needs... needs);
    template <class Guide, class... Needs>
    QWidget *build(OnClose onClose, Needs... needs);

    QWidget &mainWindow;
    WindowMaker freshMainWindow;
    std::unique_ptr<openingWindow> openingDialog;
    std::vector<std::unique_ptr<QWidget>> guides;
};

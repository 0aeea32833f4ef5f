#pragma once

#include <QObject>
#include <memory>

class aboutWindow;
class exploreWorld;
class instructions;
class openingWindow;
class selfExplore;

// The five companion windows and how their buttons lead from one to another. They
// are no children of the main window, so each counts as a window of its own when Qt
// asks whether the last one has closed.
class Companions : public QObject
{
    Q_OBJECT

public:
    explicit Companions(QWidget &mainWindow);
    ~Companions() override;

    void showOpening();
    QWidget &opening();
    // The four that the opening window leads to.
    void closeGuides();
    void closeAll();

signals:
    void startClicked(); // before the opening window closes

private:
    void connectGuide(class QAbstractButton *opener, QWidget &guide, QAbstractButton *closer);

    std::unique_ptr<openingWindow> openingDialog;
    std::unique_ptr<instructions> instructionsDialog;
    std::unique_ptr<selfExplore> selfExploreDialog;
    std::unique_ptr<exploreWorld> exploreWorldDialog;
    std::unique_ptr<aboutWindow> aboutDialog;
};

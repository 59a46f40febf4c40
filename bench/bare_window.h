// The yardstick of the start-up comparison: a plain Qt main window with as many widgets of the
// same kinds as the main window, at the same places, and nothing of the program's own.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <memory>

namespace umbrakit::bench {

// Places in twips, as the main window keeps them, 15 to a pixel.
template <typename Widget>
Widget* placed(Widget* widget, int left, int top, int width, int height) {
    widget->setGeometry(left / 15, top / 15, width / 15, height / 15);
    return widget;
}

inline std::unique_ptr<QMainWindow> makeBareWindow() {
    auto window = std::make_unique<QMainWindow>();
    window->setWindowTitle("Umbrakit");
    auto* client = new QWidget(window.get());
    client->setFixedSize(4950 / 15, 7065 / 15);
    window->setCentralWidget(client);

    placed(new QLabel("Umbrakit and lmList.dat Generator", client), 15, 0, 4905, 465)
        ->setAlignment(Qt::AlignCenter);
    placed(new QComboBox(client), 30, 510, 1035, 315)->addItems({"4x4", "8x8", "16x16", "32x32"});
    placed(new QPushButton("Select &All", client), 1155, 510, 1755, 315);
    placed(new QPushButton("&Clear Selection", client), 3000, 510, 1965, 315);
    for (int i = 0; i < 16; ++i) {
        const QString caption = QString::number(i).rightJustified(2, '0');
        placed(new QLabel(caption, client), 225 + 300 * i, 885, 240, 240);
        placed(new QLabel(caption, client), 0, 5610 - 300 * i, 240, 240);
    }
    for (int i = 0; i < 256; ++i) {
        placed(new QCheckBox(client), 225 + 300 * (i % 16), 5610 - 300 * (i / 16), 240, 240)
            ->setEnabled(i % 16 < 4 && i / 16 < 4);
    }
    auto* options = placed(new QGroupBox("Options", client), 0, 5880, 2535, 1170);
    placed(new QCheckBox("Generate &TerrainShadows", options), 105, 210, 2220, 225);
    placed(new QCheckBox("&Merge TerrainShadows", options), 105, 525, 2220, 225);
    placed(new QCheckBox("Generate &ObjectShadows", options), 105, 840, 2220, 225);
    auto* execute = placed(new QGroupBox("Execute", client), 2625, 5880, 2325, 1170);
    placed(new QPushButton("&Export lmList.dat", execute), 210, 210, 1995, 375);
    placed(new QPushButton("Run &Lighting", execute), 210, 700, 2010, 375);

    QMenuBar* bar = window->menuBar();
    QMenu* file = bar->addMenu("&File");
    file->addAction("&Save")->setShortcut(QKeySequence("Ctrl+S"));
    file->addAction("&Load")->setShortcut(QKeySequence("Ctrl+L"));
    file->addSeparator();
    file->addAction("Set &Paths")->setShortcut(QKeySequence("Ctrl+P"));
    file->addSeparator();
    file->addAction("E&xit");
    QMenu* run = bar->addMenu("&Run");
    run->addAction("Export &lmList.dat")->setShortcut(QKeySequence("Ctrl+E"));
    run->addSeparator();
    QMenu* passMenu = run->addMenu("&Options");
    for (const char* pass :
         {"Generate &TerrainShadows", "&Merge TerrainShadows", "&Generate ObjectShadows"})
        passMenu->addAction(pass)->setCheckable(true);
    run->addSeparator();
    run->addAction("&Go!")->setShortcut(QKeySequence("Ctrl+G"));
    bar->addAction("&About");
    window->statusBar()->showMessage("Ready.");
    window->resize(4950 / 15, 7350 / 15 + bar->sizeHint().height());
    return window;
}

} // namespace umbrakit::bench

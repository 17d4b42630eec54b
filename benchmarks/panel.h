#ifndef NOCTURNE_PANEL_H
#define NOCTURNE_PANEL_H

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

#include <memory>

/// One of the eight controls that panels are made of.
inline QWidget *panelControl(int number)
{
    const QString text = QStringLiteral("Track %1").arg(number);
    switch (number % 8) {
    case 0:
        return new QPushButton(text);
    case 1:
        return new QCheckBox(text);
    case 2:
        return new QLabel(text);
    case 3:
        return new QSpinBox;
    case 4:
        return new QSlider(Qt::Horizontal);
    case 5: {
        auto *box = new QComboBox;
        box->addItem(text);
        return box;
    }
    case 6:
        return new QLineEdit(text);
    default: {
        auto *bar = new QProgressBar;
        bar->setValue(number % 100);
        return bar;
    }
    }
}

/// A main window full of mixed controls.
inline std::unique_ptr<QMainWindow> panelWindow(int controls, int columns)
{
    auto window = std::make_unique<QMainWindow>();
    auto *grid = new QGridLayout;
    for (int i = 0; i < controls; ++i)
        grid->addWidget(panelControl(i), i / columns, i % columns);
    auto *centre = new QWidget;
    centre->setLayout(grid);
    window->setCentralWidget(centre);
    return window;
}

#endif

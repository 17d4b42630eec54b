#include "splitter.h"

#include "splitterhandle.h"

Splitter::Splitter(QWidget *parent)
    : QSplitter(parent)
{}

QSplitterHandle *Splitter::createHandle()
{
    return new SplitterHandle(orientation(), this);
}

void Splitter::paintEvent(QPaintEvent *) {}

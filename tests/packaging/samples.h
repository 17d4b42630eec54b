#ifndef SAMPLES_H
#define SAMPLES_H

// What the samples of the documentation take for granted: the library, the toolkit, and a host's
// own classes of which they speak.

#include <nocturne/ColorBar>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkReadableStyle>
#include <nocturne/DarkUX>
#include <nocturne/GradientTool>
#include <nocturne/KeySequenceEdit>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/RangeSlider>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>

#include <QtCore/QTranslator>
#include <QtWidgets/QtWidgets>

#endif

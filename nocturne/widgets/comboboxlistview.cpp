#include "comboboxlistview.h"

ComboBoxListView::ComboBoxListView(QComboBox *cmb)
    : m_comboBox(cmb)
{}

ComboBoxListView::~ComboBoxListView() = default;

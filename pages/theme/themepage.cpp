#include "pages/theme/themepage.h"

#include "ui_themeform.h"

ThemePage::ThemePage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ThemeForm>())
{
    m_ui->setupUi(this);
}

ThemePage::~ThemePage() = default;

bool ThemePage::loadValues(QazSettings * /*settings*/)
{
    loaded = true;
    return true;
}

bool ThemePage::saveValues(QazSettings * /*settings*/)
{
    return true;
}

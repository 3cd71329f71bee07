#include "fonts/fontpage.h"

#include "ui_fontform.h"

FontPage::FontPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::FontForm>())
{
    m_ui->setupUi(this);
}

FontPage::~FontPage() = default;

bool FontPage::loadValues(QazSettings * /*settings*/)
{
    loaded = true;
    return true;
}

bool FontPage::saveValues(QazSettings * /*settings*/)
{
    return true;
}

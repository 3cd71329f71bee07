#include "pages/effects/effectpage.h"

#include "ui_effectform.h"

EffectPage::EffectPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::EffectForm>())
{
    m_ui->setupUi(this);
}

EffectPage::~EffectPage() = default;

bool EffectPage::loadValues(QazSettings * /*settings*/)
{
    loaded = true;
    return true;
}

bool EffectPage::saveValues(QazSettings * /*settings*/)
{
    return true;
}

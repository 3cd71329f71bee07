#include "pages/sounds/soundpage.h"

#include "ui_soundform.h"

SoundPage::SoundPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::SoundForm>())
{
    m_ui->setupUi(this);
}

SoundPage::~SoundPage() = default;

bool SoundPage::loadValues(QazSettings * /*settings*/)
{
    loaded = true;
    return true;
}

bool SoundPage::saveValues(QazSettings * /*settings*/)
{
    return true;
}

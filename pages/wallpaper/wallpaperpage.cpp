#include "pages/wallpaper/wallpaperpage.h"

#include "ui_wallpaperform.h"

WallpaperPage::WallpaperPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::WallpaperForm>())
{
    m_ui->setupUi(this);
}

WallpaperPage::~WallpaperPage() = default;

bool WallpaperPage::loadValues(QazSettings * /*settings*/)
{
    loaded = true;
    return true;
}

bool WallpaperPage::saveValues(QazSettings * /*settings*/)
{
    return true;
}

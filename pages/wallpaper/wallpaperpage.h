#pragma once

#include <QWidget>

#include <memory>

class QazSettings;

namespace Ui {
class WallpaperForm;
}

class WallpaperPage : public QWidget
{
    Q_OBJECT
public:
    explicit WallpaperPage(QWidget *parent = nullptr);
    ~WallpaperPage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    bool loadValues(QazSettings *settings);
    bool saveValues(QazSettings *settings);

private:
    std::unique_ptr<Ui::WallpaperForm> m_ui;
};

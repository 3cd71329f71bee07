#pragma once

#include <QWidget>

#include <memory>

class QazSettings;

namespace Ui {
class SoundForm;
}

class SoundPage : public QWidget
{
    Q_OBJECT
public:
    explicit SoundPage(QWidget *parent = nullptr);
    ~SoundPage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    bool loadValues(QazSettings *settings);
    bool saveValues(QazSettings *settings);

private:
    std::unique_ptr<Ui::SoundForm> m_ui;
};

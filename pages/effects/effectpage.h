#pragma once

#include <QWidget>

#include <memory>

class QazSettings;

namespace Ui {
class EffectForm;
}

class EffectPage : public QWidget
{
    Q_OBJECT
public:
    explicit EffectPage(QWidget *parent = nullptr);
    ~EffectPage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    bool loadValues(QazSettings *settings);
    bool saveValues(QazSettings *settings);

private:
    std::unique_ptr<Ui::EffectForm> m_ui;
};

#pragma once

#include <QWidget>

#include <memory>

class QazSettings;

namespace Ui {
class ThemeForm;
}

class ThemePage : public QWidget
{
    Q_OBJECT
public:
    explicit ThemePage(QWidget *parent = nullptr);
    ~ThemePage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    bool loadValues(QazSettings *settings);
    bool saveValues(QazSettings *settings);

private:
    std::unique_ptr<Ui::ThemeForm> m_ui;
};

#pragma once

#include <QWidget>

#include <memory>

class QazSettings;

namespace Ui {
class FontForm;
}

class FontPage : public QWidget
{
    Q_OBJECT
public:
    explicit FontPage(QWidget *parent = nullptr);
    ~FontPage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    bool loadValues(QazSettings *settings);
    bool saveValues(QazSettings *settings);

private:
    std::unique_ptr<Ui::FontForm> m_ui;
};

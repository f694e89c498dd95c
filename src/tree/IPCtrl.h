// An editor of IPv4 addresses: four fields from 0 to 255.
#pragma once

#include <QLineEdit>
#include <QWidget>

#include <array>

class IPCtrl : public QWidget
{
    Q_OBJECT
public:
    explicit IPCtrl(QWidget *parent = nullptr);

    // The four fields joined with dots. Of a text that is no address, the parts that fit are taken.
    QString text() const;
    void setText(const QString &address);

protected:
    // A dot goes on to the next field.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr int octets = 4;
    std::array<QLineEdit *, octets> m_fields;
};

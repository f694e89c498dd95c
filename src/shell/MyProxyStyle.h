// The platform's style with larger small icons.
#pragma once

#include <QProxyStyle>

class MyProxyStyle : public QProxyStyle
{
    Q_OBJECT
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override
    {
        constexpr int smallIconSize = 24;
        return metric == PM_SmallIconSize ? smallIconSize
                                          : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

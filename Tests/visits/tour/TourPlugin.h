// Gives Qt the tour (Tour.h) as the generic plugin "kxtour".

#pragma once

#include <QGenericPlugin>

namespace kx {

class TourPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "kxtour.json")

public:
    QObject* create(const QString& name, const QString& specification) override;
};

} // namespace kx

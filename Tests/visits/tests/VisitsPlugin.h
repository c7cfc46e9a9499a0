// Gives Qt the visits of the tests as the generic plugins "kxsteps" (Steps.h), "kxsoak" (Soak.h)
// and "kxsiege" (Siege.h).

#pragma once

#include <QGenericPlugin>

namespace kx {

class VisitsPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "kxvisits.json")

public:
    // Null for any other name.
    QObject* create(const QString& name, const QString& specification) override;
};

} // namespace kx

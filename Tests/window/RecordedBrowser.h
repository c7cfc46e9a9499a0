// Takes the place of the application that opens files, and records their URLs.

#pragma once

#include <QObject>
#include <QUrl>
#include <string>
#include <vector>

namespace kx {

class RecordedBrowser final : public QObject {
    Q_OBJECT

public:
    RecordedBrowser();
    ~RecordedBrowser() override;

    Q_INVOKABLE void open(const QUrl& url) { urls.push_back(url.toEncoded().toStdString()); }

    std::vector<std::string> urls;
};

} // namespace kx

#include "bench/window/Bench.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace marlevo {

void Bench::report(const QJsonObject& result) const {
    std::puts(QJsonDocument(result).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

QJsonObject summary(const std::vector<EventCost>& costs, QEvent::Type type) {
    std::vector<double> process;
    std::vector<double> ui;
    std::vector<double> painted;
    for (const EventCost& cost : costs) {
        if (cost.type != type) continue;
        process.push_back(cost.process);
        ui.push_back(cost.ui);
        if (cost.isPainted()) painted.push_back(cost.untilPainted);
    }
    if (ui.empty()) qFatal("no event was seen");
    const auto count = static_cast<double>(ui.size());
    QJsonObject result{
        {"events", count},
        {"process", median(process)},
        {"processMean", std::accumulate(process.begin(), process.end(), 0.0) / count},
        {"ui", median(ui)},
        {"ui99", percentile99(ui)}};
    if (!painted.empty())
        result = result + QJsonObject{{"painted", median(painted)},
                                      {"painted99", percentile99(painted)},
                                      {"paintedMost", *std::ranges::max_element(painted)}};
    return result;
}

QJsonObject operator+(QJsonObject a, const QJsonObject& b) {
    for (auto member = b.begin(); member != b.end(); ++member)
        a[member.key()] = member.value();
    return a;
}

}  // namespace marlevo

#include "platform/fileCheck.h"

#include <condition_variable>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

namespace platform {

namespace {

// Outlives whoever asked: a look at a dead share may come back long after.
struct Looks {
    std::mutex mutex;
    std::condition_variable answered;
    std::set<std::string> underWay; // so that no path is looked at by two threads
    std::map<std::string, bool> present;
};

void look(const std::shared_ptr<Looks>& looks, const std::string& path) {
    std::error_code error;
    const bool isMissing =
        std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found;
    const std::lock_guard guard(looks->mutex);
    looks->present[path] = !isMissing;
    looks->underWay.erase(path);
    looks->answered.notify_all();
}

} // namespace

std::vector<bool> arePresent(const std::vector<std::string>& paths, std::chrono::milliseconds longest) {
    static const auto looks = std::make_shared<Looks>();
    std::unique_lock lock(looks->mutex);
    for (const std::string& path : paths) {
        if (looks->underWay.contains(path)) continue;
        looks->present.erase(path);
        try {
            std::thread(look, looks, path).detach();
            looks->underWay.insert(path);
        } catch (const std::system_error&) {
            // No thread to be had: it counts as there.
        }
    }
    const auto isUnderWay = [&](const std::string& path) { return looks->underWay.contains(path); };
    looks->answered.wait_for(lock, longest, [&] {
        for (const std::string& path : paths)
            if (isUnderWay(path)) return false;
        return true;
    });
    std::vector<bool> answers;
    answers.reserve(paths.size());
    for (const std::string& path : paths) {
        const auto known = looks->present.find(path);
        answers.push_back(isUnderWay(path) || known == looks->present.end() || known->second);
    }
    return answers;
}

} // namespace platform

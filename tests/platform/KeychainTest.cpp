#include "platform/linux/SecretServiceKeychain.h"
#include "support/PrintQt.h"
#include "support/PrivateKeyring.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <fstream>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// What a wait ended with: "ok", what was read, or the kind of the error.
struct Outcome {
    QString value;
    std::optional<ErrorKind> error;

    bool operator==(const Outcome&) const = default;
};
void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << (outcome.error ? "error " + std::to_string(int(*outcome.error))
                           : outcome.value.toStdString());
}

template <typename T>
struct Waiting {
    std::optional<Expected<T>> answer;

    auto taker() {
        return [this](Expected<T> result) { answer = std::move(result); };
    }
    Outcome outcome() {
        QElapsedTimer timer;
        for (timer.start(); !answer && timer.elapsed() < 30'000;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        if (!answer)
            return {u"no answer"_s, {}};
        if (!*answer) {
            EXPECT_FALSE(answer->error().message.isEmpty());
            return {{}, answer->error().kind};
        }
        if constexpr (std::is_void_v<T>)
            return {u"ok"_s, {}};
        else
            return {**answer, {}};
    }
};

class KeychainTest : public ::testing::Test {
protected:
    /// The library behind it keeps to the first bus of a process, so there is but one.
    static void SetUpTestSuite() {
        keyring_ = std::make_unique<PrivateKeyring>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", keyring_->address().toUtf8());
    }
    static void TearDownTestSuite() { keyring_.reset(); }
    void TearDown() override { keyring_->stop(); }

    Outcome read(Keychain& keychain) {
        Waiting<QString> waiting;
        keychain.read(u"a-key"_s, waiting.taker());
        return waiting.outcome();
    }
    Outcome save(Keychain& keychain, const QString& value) {
        Waiting<void> waiting;
        keychain.save(value, u"a-key"_s, waiting.taker());
        return waiting.outcome();
    }
    Outcome remove(Keychain& keychain) {
        Waiting<void> waiting;
        keychain.remove(u"a-key"_s, waiting.taker());
        return waiting.outcome();
    }
    static Outcome failed(ErrorKind kind) { return {{}, kind}; }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    SecretServiceKeychain keychain_{
        u"quillon-test"_s, processEnvironment, {.forLook = 8s, .forDeed = 8s}};
    static inline std::unique_ptr<PrivateKeyring> keyring_;
};

TEST_F(KeychainTest, KeepsOneValueAnAccount) {
    ASSERT_TRUE(keyring_->start("open sesame"));
    EXPECT_EQ(read(keychain_), failed(ErrorKind::notFound));
    EXPECT_EQ(remove(keychain_), failed(ErrorKind::notFound));
    EXPECT_EQ(save(keychain_, u"sk-først"_s), Outcome({u"ok"_s, {}}));
    EXPECT_EQ(save(keychain_, u"sk-second"_s), Outcome({u"ok"_s, {}}));
    EXPECT_EQ(read(keychain_), Outcome({u"sk-second"_s, {}}));
    SecretServiceKeychain other(u"somebody-else"_s);
    EXPECT_EQ(read(other), failed(ErrorKind::notFound));
    EXPECT_EQ(remove(keychain_), Outcome({u"ok"_s, {}}));
    EXPECT_EQ(read(keychain_), failed(ErrorKind::notFound));
}

TEST_F(KeychainTest, SaysWhatIsWrongWithTheKeyring) {
    EXPECT_EQ(read(keychain_), failed(ErrorKind::unsupported)) << "no service";
    EXPECT_EQ(save(keychain_, u"sk"_s), failed(ErrorKind::unsupported));

    ASSERT_TRUE(keyring_->start("open sesame"));
    ASSERT_EQ(save(keychain_, u"sk-kept"_s), Outcome({u"ok"_s, {}}));
    keyring_->stop();
    ASSERT_TRUE(keyring_->start());
    EXPECT_EQ(read(keychain_), failed(ErrorKind::locked));
    EXPECT_EQ(save(keychain_, u"sk-other"_s), failed(ErrorKind::locked));
    EXPECT_EQ(remove(keychain_), failed(ErrorKind::locked));
    keyring_->stop();
    ASSERT_TRUE(keyring_->start("open sesame"));
    EXPECT_EQ(read(keychain_), Outcome({u"sk-kept"_s, {}})) << "and is as it was";

    SecretServiceKeychain hasty(u"quillon-test"_s, processEnvironment,
                                {.forLook = 200ms, .forDeed = 200ms});
    keyring_->freeze();
    EXPECT_EQ(read(hasty), failed(ErrorKind::timedOut));
    keyring_->stop();
    ASSERT_TRUE(keyring_->start("open sesame"));
    EXPECT_EQ(read(keychain_), Outcome({u"sk-kept"_s, {}}));
}

TEST_F(KeychainTest, SaysWhoRefusesAndWhatIsAbsent) {
    PrivateKeyring refusing(PrivateKeyring::Policy::refusing);
    ASSERT_TRUE(refusing.start("open sesame"));
    const struct {
        std::string address;
        ErrorKind kind;
    } rows[] = {
        {refusing.address().toStdString(), ErrorKind::permissionDenied},
        {"", ErrorKind::unsupported},
        {"unix:path=/nowhere", ErrorKind::unsupported},
    };
    for (const auto& [address, kind] : rows) {
        SecretServiceKeychain keychain(u"quillon-test"_s, [&](const char* name) {
            return std::string_view(name) == "XDG_RUNTIME_DIR" ? std::optional<std::string>()
                                                               : address;
        });
        EXPECT_EQ(read(keychain), failed(kind)) << address;
        EXPECT_EQ(save(keychain, u"sk"_s), failed(kind)) << address;
    }
}

TEST_F(KeychainTest, OutlivesTheBus) {
    ASSERT_TRUE(keyring_->start("open sesame"));
    EXPECT_EQ(save(keychain_, u"sk-kept"_s), Outcome({u"ok"_s, {}}));
    keyring_->stopBus();
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 200;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_EQ(read(keychain_), failed(ErrorKind::unsupported));
}

} // namespace
} // namespace quillon::testing

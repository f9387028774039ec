#include "reference/Praguri.h"

#include <gtest/gtest.h>

namespace {

// What the editor stores for two boxes, and whether a text from elsewhere passes the same check.
TEST(Praguri, TextulSalvatSiVerificarea) {
    const struct {
        const char *inferior, *superior;
        std::optional<QString> salvat;
    } cazuri[] = {
        {"210,2", " 557.03 ", QStringLiteral("210.2|557.03")},
        {"600", "200", QStringLiteral("600|200")}, // the order is the office's
        {"0", "557", std::nullopt},
        {"210", "0", std::nullopt},
        {"210", "-5", std::nullopt},
        {"", "557", std::nullopt},
        {"1.234,5", "2000", std::nullopt}, // thousands marks would not read back
        {"abc", "557", std::nullopt},
    };
    for (const auto& c : cazuri) {
        const auto salvat = TextPraguri(QString::fromUtf8(c.inferior), QString::fromUtf8(c.superior));
        EXPECT_EQ(salvat, c.salvat) << c.inferior << " | " << c.superior;
        if (salvat) {
            EXPECT_TRUE(PraguriValide(*salvat)) << salvat->toStdString();
        }
    }
    for (const char* rau : {"", "210.2", "210.2|557|900", "210,2|557", "0|557", "210|x", "|557"})
        EXPECT_FALSE(PraguriValide(QString::fromUtf8(rau))) << rau;
}

} // namespace

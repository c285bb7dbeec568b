#include "pad/PadFieldRules.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;

// One valid rule per element, each at the end of its path.
TEST(PadFieldRules, TableIsWellFormed) {
    const auto& rules = padFieldRules();
    QSet<QString> elements;
    for (const auto& rule : rules) {
        EXPECT_TRUE(rule.regex.isValid()) << rule.element.toStdString();
        EXPECT_TRUE(rule.path.endsWith(u'/' + rule.element)) << rule.path.toStdString();
        elements.insert(rule.element);
    }
    EXPECT_EQ(elements.size(), static_cast<qsizetype>(rules.size()));
    ASSERT_NE(padFieldRule(u"Program_Specific_Category"), nullptr);
    EXPECT_TRUE(padFieldRule(u"Program_Specific_Category")->required);
    EXPECT_FALSE(padFieldRule(u"Address_1")->required);
    EXPECT_EQ(padFieldRule(u"Program_Categories"), nullptr);
}

// "\Z" as the published checks read it: the end, or before one final line break.
TEST(PadFieldRules, EndOfTextAsPublished) {
    const PadFieldRule& version = *padFieldRule(u"Program_Version");
    EXPECT_TRUE(version.accepts(u"2.1.0"_s));
    EXPECT_TRUE(version.accepts(u"2.1.0\n"_s));
    EXPECT_FALSE(version.accepts(u"2.1.0\n\n"_s));
    EXPECT_FALSE(version.accepts(u"2.1.0 beta"_s));
    const PadFieldRule& country = *padFieldRule(u"Country");
    EXPECT_TRUE(country.accepts(u"C\u00f4te d'Ivoire"_s)); // Latin-1 letters
    EXPECT_FALSE(country.accepts(u"St. Helena"_s));
}

// Every meaning of both tables is said as advice, none quoted as it stands (the rows of 4.0
// that have no pattern, or that only the closed registry could fill, have nothing to advise).
TEST(PadFieldRules, EveryMeaningIsPhrasedAsAdvice) {
    std::vector<PadFieldRule> rules = padFieldRules(PadVersion::V3_11);
    for (const auto& rule : padFieldRules(PadVersion::V4_0))
        if (!rule.pattern.isEmpty() && !rule.meaning.startsWith(u"Issued by the registry"_s))
            rules.push_back(rule);
    for (const auto& rule : rules) {
        const QString advice = rule.advice();
        EXPECT_TRUE(advice.startsWith(QLatin1String("should be")) ||
                    advice.startsWith(QLatin1String("should name")))
            << rule.element.toStdString() << ": " << advice.toStdString();
        EXPECT_FALSE(advice.contains(u'\\')) << advice.toStdString();
    }
    EXPECT_EQ(padFieldRule(u"Contact_First_Name")->advice(),
              u"should be a text of 2 to 30 characters, without < and tabs"_s);
}

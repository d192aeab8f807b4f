// Which text a person reads for a key, in which language, and how a label finds its key again. A regression
// shows as
// "(null)" on the screen or a setting stored under the wrong name.
#include "PendixSettings/Configuration/configurationController.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "Tweak/Core/Translator.h"

#include "Runtime/Files/FoundationFiles.hpp"
#include "SpringBoard/Sandbox.h"

#include <gtest/gtest.h>

namespace {

std::string text(NSString *string) { return string ? [string UTF8String] : "nil"; }

class Texts : public testing::Test {
protected:
    // As the process was told when it started; nothing is stored.
    void prefer(NSString *language) {
        NSArray *languages = [NSArray arrayWithObjects:language, @"en", nil];
        NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
        [defaults removeVolatileDomainForName:NSArgumentDomain];
        [defaults setVolatileDomain:[NSDictionary dictionaryWithObject:languages forKey:@"AppleLanguages"]
                            forName:NSArgumentDomain];
    }

    void put(const std::string &language, const std::string &table) {
        std::filesystem::create_directories(folder());
        std::ofstream(folder() / (language + ".plist")) << table;
    }

    std::filesystem::path folder() const {
        return sandbox.path("/Library/Application Support/Pendix/Languages");
    }

    harness::Sandbox sandbox;
};

TEST_F(Texts, FollowTheFirstLanguageOnBothSides) {
    put("en", "{ close = Close; }");
    put("it", "{ close = Chiudi; }");
    put("es", "{ close = Cerrar; }");
    struct {
        NSString *language;
        const char *home, *pane, *paneLanguage;
    } const cases[] = {
        {@"en", "Close", "Close", "en"}, {@"it", "Chiudi", "Chiudi", "it"}, {@"es", "Cerrar", "Close", "en"},
        {@"fr", "Close", "Close", "en"}, {@"IT", "Close", "Close", "en"},
    };
    for (const auto &c : cases) {
        prefer(c.language);
        EXPECT_EQ(text(pendix::Translator(@"close")), c.home) << text(c.language);
        EXPECT_EQ(text(pendix::pane::Translator(@"close")), c.pane) << text(c.language);
        EXPECT_EQ(text(pendix::pane::lang()), c.paneLanguage) << text(c.language);
    }
}

TEST_F(Texts, FallBackToEnglishForAKeyButNotForATable) {
    put("en", "{ close = Close; empty = \"\"; only_english = Here; }");
    put("it", "{ close = Chiudi; empty = \"\"; list = ( a ); }");
    prefer(@"it");
    EXPECT_EQ(text(pendix::Translator(@"close")), "Chiudi");
    EXPECT_EQ(text(pendix::Translator(@"only_english")), "Here");
    EXPECT_EQ(text(pendix::Translator(@"empty")), "(null)");
    EXPECT_EQ(text(pendix::Translator(@"list")), "(null)") << "a value that is no text";
    EXPECT_EQ(text(pendix::Translator(@"nowhere")), "(null)");

    std::filesystem::remove(folder() / "en.plist");
    EXPECT_EQ(text(pendix::Translator(@"nowhere")), "nil")
        << "without an English table the value comes as it is";
    put("en", "{ close = Close; }");
    std::filesystem::remove(folder() / "it.plist");
    EXPECT_EQ(text(pendix::Translator(@"close")), "(null)") << "a language without a table";
    put("it", "this is { no table");
    EXPECT_EQ(text(pendix::Translator(@"close")), "Close") << "a table that cannot be read has no keys";
}

TEST_F(Texts, EveryLabelFindsItsKeyAgain) {
    std::filesystem::create_directories(folder());
    for (const char *language : {"en", "it", "es"})
        std::filesystem::copy(std::string(LANGUAGES "/") + language + ".plist", folder());
    for (NSString *language in [NSArray arrayWithObjects:@"en", @"it", nil]) {
        prefer(language);
        for (NSString *key in
             [NSArray arrayWithObjects:@"enable", @"hide_t", @"b", @"light", @"where", @"passw", nil])
            EXPECT_EQ(text(pendix::pane::getNotTranslated(pendix::pane::Translator(key))), text(key));
    }
    EXPECT_EQ(text(pendix::pane::getNotTranslated(@"no label reads like this")), "(null)");
    EXPECT_EQ(text(pendix::pane::getNotTranslated(nil)), "(null)");
    std::filesystem::remove_all(folder());
    EXPECT_EQ(text(pendix::pane::getNotTranslated(@"Enable")), "(null)");
}

TEST_F(Texts, AreReadAnewEachTime) {
    prefer(@"it");
    put("en", "{ only_english = Here; }");
    for (const char *word : {"Chiudi", "Chiudo", "Esci", "Chiudi"}) {
        put("it", std::string("{ close = ") + word + "; }");
        EXPECT_EQ(text(pendix::Translator(@"close")), word);
        EXPECT_EQ(text(pendix::pane::Translator(@"close")), word);
        EXPECT_EQ(text(pendix::pane::getNotTranslated([NSString stringWithUTF8String:word])), "close");
        EXPECT_EQ(text(pendix::pane::Translator(@"only_english")), "Here");
    }
    put("en", "{ only_english = There; }");
    EXPECT_EQ(text(pendix::pane::Translator(@"only_english")), "There");
    put("it", "this is { no table");
    EXPECT_EQ(text(pendix::pane::Translator(@"close")), "(null)") << "and not what it said before";
    EXPECT_EQ(text(pendix::pane::getNotTranslated(@"Chiudi")), "(null)");
    put("it", "{ close = Chiudi; }");
    prefer(@"en");
    EXPECT_EQ(text(pendix::pane::Translator(@"only_english")), "There") << "another language";
    std::filesystem::remove_all(folder());
    EXPECT_EQ(text(pendix::pane::Translator(@"only_english")), "(null)");
}

// Building a page and showing the value of each of its rows.
TEST_F(Texts, OfAPageAreParsedOnce) {
    prefer(@"en");
    put("en", "{ close = \"something else was read last\"; }");
    pendix::pane::Translator(@"close");
    std::filesystem::copy(LANGUAGES "/en.plist", folder(), std::filesystem::copy_options::overwrite_existing);
    sim::watchFile("/Library/Application Support/Pendix/Languages/en.plist");
    for (size_t most : {1, 0}) {
        sim::resetFileCounts();
        configurationController *page = [[configurationController alloc] init];
        for (PSSpecifier *row in [page specifiers]) [page getValue:row];
        EXPECT_GT([[page specifiers] count], 5u);
        EXPECT_EQ(sim::fileCounts().reads, most);
        [page release];
    }
}

} // namespace

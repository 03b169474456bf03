#include "gateway/xml_document.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <cstdio>
#include <filesystem>

#include "platform/http_loader.h"
#include "runtime/code_page.h"
#include "runtime/runtime_error.h"
#include "tests/gateway/rows_fixture.h"
#include "tests/support/files.h"

namespace tarn::test {
namespace {

constexpr std::string_view rowset =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xml xmlns:s='uuid:BDC6E3F0' xmlns:rs='urn:schemas-microsoft-com:rowset' "
    "xmlns:z='#RowsetSchema'>\n"
    " <s:Schema id='RowsetSchema'/>\n"
    " <rs:data>\n"
    "  <!-- not a row -->\n"
    "  <z:row NM_FIL='MATRIZ'/>\n"
    "  <outra NM_FIL='FILIAL'/>\n"
    " </rs:data>\n"
    " <rs:data><z:row NM_FIL='DEPOIS'/></rs:data>\n"
    "</xml>\n";

XmlDocument loaded(std::string_view text) {
    XmlDocument document;
    EXPECT_TRUE(document.loadXML(text)) << text;
    return document;
}

bool loads(std::string_view text) {
    testing::internal::CaptureStderr();
    XmlDocument document;
    const bool ok = document.loadXML(text);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(document.empty(), !ok);
    EXPECT_EQ(document.xml().empty(), !ok);
    return ok;
}

TEST(XmlDocument, DeclarationIsChild0AndRootChild1) {
    const XmlDocument document = loaded("<?xml version='1.0'?><R a='1' b='OK'/>");
    EXPECT_EQ(document.childCount(), 2U);
    EXPECT_EQ(document.child(0).nodeName(), "xml");
    EXPECT_EQ(document.child(0).attributes().length(), 0U);
    EXPECT_EQ(document.child(0).childCount(), 0U);
    EXPECT_EQ(document.child(1).nodeName(), "R");
    EXPECT_FALSE(document.child(2));
}

TEST(XmlDocument, WithoutDeclarationTheRootIsChild0) {
    const XmlDocument document = loaded("<R a='1' b='OK'/>");
    EXPECT_EQ(document.childCount(), 1U);
    EXPECT_EQ(document.child(0).nodeName(), "R");
    EXPECT_FALSE(document.child(1));
    expectObjectError([&] { (void)document.child(1).attributes(); });
}

TEST(XmlDocument, StandaloneDeclarationsCountToo) {
    EXPECT_EQ(loaded("<?xml version='1.0' standalone='yes'?><R/>").childCount(), 2U);
    EXPECT_EQ(loaded("<?xml version='1.0' standalone='no'?><R/>").childCount(), 2U);
    EXPECT_EQ(loaded("<?xml version='1.0' encoding='UTF-8'?><!-- c --><?pi x?><R/>").childCount(),
              2U);
}

TEST(XmlDocument, OnlyElementsAreChildren) {
    const XmlDocument document = loaded(
        "<?xml version='1.0'?>\n<R>\n  text <!-- c --><?pi?>\n<A/>\r\n <B/><![CDATA[x]]></R>");
    const XmlNode root = document.documentElement();
    ASSERT_EQ(root.childCount(), 2U);
    EXPECT_EQ(root.child(0).nodeName(), "A");
    EXPECT_EQ(root.child(1).nodeName(), "B");
    EXPECT_FALSE(root.child(2));
    EXPECT_EQ(root.childNodes().length(), 2U);
    EXPECT_EQ(root.childNodes().item(1).nodeName(), "B");
    EXPECT_FALSE(root.childNodes().item(2));
    EXPECT_EQ(root.text(), "\n  text x");
}

TEST(XmlDocument, NullObjectsRaise) {
    expectObjectError([] { (void)XmlNode().nodeName(); });
    expectObjectError([] { (void)XmlNode().text(); });
    expectObjectError([] { (void)XmlNode().xml(); });
    expectObjectError([] { (void)XmlNode().childCount(); });
    expectObjectError([] { (void)XmlNode().child(0); });
    expectObjectError([] { (void)XmlNode().childNodes(); });
    expectObjectError([] { (void)XmlNode().attributes(); });
    expectObjectError([] { (void)XmlNode().selectSingleNode("A"); });
    expectObjectError([] { (void)XmlNode().selectNodes("A"); });
    expectObjectError([] { (void)XmlAttribute().text(); });
    expectObjectError([] { (void)XmlAttribute().name(); });
    expectObjectError([] { (void)XmlAttribute().baseName(); });
}

TEST(XmlDocument, AttributesInOrderAndByExactName) {
    const XmlDocument document = loaded("<R xmlns:p='u' b='1' p:c='2' A='3' v=''/>");
    const XmlAttributes attributes = document.documentElement().attributes();
    ASSERT_EQ(attributes.length(), 4U);
    EXPECT_EQ(attributes.item(0).name(), "b");
    EXPECT_EQ(attributes.item(1).name(), "p:c");
    EXPECT_EQ(attributes.item(1).baseName(), "c");
    EXPECT_EQ(attributes.item(2).text(), "3");
    EXPECT_EQ(attributes.item(3).text(), "");
    EXPECT_FALSE(attributes.item(4));
    EXPECT_FALSE(attributes.getNamedItem("a"));
    EXPECT_FALSE(attributes.getNamedItem("c"));
    EXPECT_EQ(attributes.getNamedItem("p:c").text(), "2");
    EXPECT_EQ(attributes.getNamedItem("A").text(), "3");
}

TEST(XmlDocument, ReferencesInValues) {
    const XmlDocument document =
        loaded("<R v='a&amp;b &lt;c&gt; &quot;d&quot; &apos; &#231;&#xE7;&#10;|x\ny\tz'/>");
    EXPECT_EQ(document.documentElement().attributes().item(0).text(), "a&b <c> \"d\" ' çç\n|x y z");
}

TEST(XmlDocument, RowsOfARowset) {
    const XmlDocument document = loaded(rowset);
    const XmlNode data = document.selectSingleNode("xml/rs:data");
    ASSERT_TRUE(data);
    EXPECT_EQ(data.nodeName(), "rs:data");
    EXPECT_EQ(data.baseName(), "data");
    ASSERT_EQ(data.childCount(), 2U);
    EXPECT_EQ(data.child(0).nodeName(), "z:row");
    EXPECT_EQ(data.child(1).attributes().getNamedItem("NM_FIL").text(), "FILIAL");
    EXPECT_EQ(document.selectNodes("xml/rs:data").length(), 2U);
}

TEST(XmlDocument, PrefixIsTheDocumentsOwn) {
    EXPECT_TRUE(
        loaded("<xml xmlns:rs='anything'><rs:data/></xml>").selectSingleNode("xml/rs:data"));
    EXPECT_TRUE(loaded("<xml><rs:data/></xml>").selectSingleNode("xml/rs:data"));
    EXPECT_FALSE(loaded("<xml xmlns:r='urn:schemas-microsoft-com:rowset'><r:data/></xml>")
                     .selectSingleNode("xml/rs:data"));
    EXPECT_FALSE(loaded("<xml><data/></xml>").selectSingleNode("xml/rs:data"));
    EXPECT_FALSE(loaded("<XML xmlns:rs='u'><rs:data/></XML>").selectSingleNode("xml/rs:data"));
    EXPECT_FALSE(
        loaded("<xml xmlns:rs='u'><a><rs:data/></a></xml>").selectSingleNode("xml/rs:data"));
    EXPECT_FALSE(XmlDocument().selectSingleNode("xml/rs:data"));
}

TEST(XmlDocument, PathsOfDocumentAnswers) {
    const XmlDocument document = loaded(
        "<PRINCIPAL a='1' b='OK'><CAB/><ITEM n='1'><PARCELA/><ITEM n='2'/></ITEM><X><ITEM "
        "n='3'/></X>"
        "</PRINCIPAL>");
    const XmlNode root = document.selectSingleNode("PRINCIPAL");
    ASSERT_TRUE(root);
    const XmlNodeList items = root.selectNodes("//ITEM");
    ASSERT_EQ(items.length(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(items.item(i).attributes().item(0).text(), std::to_string(i + 1));
    }
    EXPECT_EQ(root.selectNodes("//PARCELA").length(), 1U);
    EXPECT_EQ(root.selectNodes("//PARCEL").length(), 0U);
    EXPECT_EQ(root.selectSingleNode("//ITEM").attributes().item(0).text(), "1");
    EXPECT_EQ(root.selectSingleNode("X/ITEM").attributes().item(0).text(), "3");
    EXPECT_FALSE(root.selectSingleNode("PRINCIPAL"));
    EXPECT_FALSE(document.selectSingleNode("Principal"));
    EXPECT_EQ(XmlDocument().selectNodes("//ITEM").length(), 0U);
}

TEST(XmlDocument, ChildByPositionOfAnyParentAtAnyTime) {
    std::string text = "<R>";
    for (int i = 0; i < 500; ++i) {
        text += "<I n='" + std::to_string(i) + "'><A/><B/></I>";
    }
    const XmlDocument document = loaded(text + "</R>");
    const XmlNode root = document.documentElement();
    for (std::size_t i = 500; i-- > 0;) {
        EXPECT_EQ(root.child(i).attributes().item(0).text(), std::to_string(i));
        EXPECT_EQ(root.child(i).child(1).nodeName(), "B");
    }
}

TEST(XmlDocument, EncodingsAsDeclared) {
    const auto name = [](std::string_view text) {
        return std::string(loaded(text).documentElement().attributes().item(0).text());
    };
    EXPECT_EQ(name("<R n='Ação'/>"), "Ação");
    EXPECT_EQ(name("\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><R n='Ação'/>"), "Ação");
    EXPECT_EQ(name("<?xml version='1.0' encoding='ISO-8859-1'?><R n='A\xE7\xE3o'/>"), "Ação");
    EXPECT_EQ(name("<?xml version='1.0' encoding='windows-1252'?><R n='A\xE7\xE3o \x80\x93'/>"),
              "Ação €“");
}

TEST(XmlDocument, EachByteOfWindows1252IsItsCharacter) {
    for (int byte = 128; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        const std::string text =
            "<?xml version='1.0' encoding='windows-1252'?><R n='" + bytes + "'/>";
        if (std::string_view("\x81\x8D\x8F\x90\x9D").find(bytes) != std::string_view::npos) {
            EXPECT_FALSE(loads(text)) << byte;
        } else {
            EXPECT_EQ(loaded(text).documentElement().attributes().item(0).text(),
                      fromWindows1252(bytes))
                << byte;
        }
    }
}

// Longer than any piece in which the parser takes it, so that letters stand at every seam.
TEST(XmlDocument, ALongAnswerInWindows1252IsWhole) {
    std::string bytes;
    for (int i = 0; bytes.size() < 100'000; ++i) {
        bytes += std::string(static_cast<std::size_t>(i % 7), 'a') + "\x80\xE7";
    }
    const auto document =
        loaded("<?xml version='1.0' encoding='windows-1252'?><R n='" + bytes + "'/>");
    EXPECT_EQ(document.documentElement().attributes().item(0).text(), fromWindows1252(bytes));
}

TEST(XmlDocument, FailedLoads) {
    EXPECT_FALSE(loads(""));
    EXPECT_FALSE(loads("   "));
    EXPECT_FALSE(loads("nothing"));
    EXPECT_FALSE(loads("<html><body>500<br></body></html>"));
    EXPECT_FALSE(loads("<R a='1' b='OK'"));
    EXPECT_FALSE(loads("<R>"));
    EXPECT_FALSE(loads("<R/><S/>"));
    EXPECT_FALSE(loads("<R a='1' a='2'/>"));
    EXPECT_FALSE(loads(" <?xml version='1.0'?><R/>"));
    EXPECT_FALSE(loads("<?xml version='1.0' encoding='no-such-code'?><R/>"));
    EXPECT_FALSE(loads("<R n='A\xE7\xE3o'/>"));
    EXPECT_FALSE(loads("<?xml version='1.0' encoding='windows-1252'?><R n='\x81'/>"));
    EXPECT_FALSE(loads("<R n='&nbsp;'/>"));
    EXPECT_FALSE(loads("<R n='&#27;'/>"));
    EXPECT_FALSE(loads("<!-- only a comment -->"));
    EXPECT_TRUE(loads("<R/>"));
}

TEST(XmlDocument, DocumentTypesAreRefused) {
    EXPECT_FALSE(loads("<!DOCTYPE R><R/>"));
    EXPECT_FALSE(loads("<!DOCTYPE R SYSTEM 'file:///etc/passwd'><R/>"));
    EXPECT_FALSE(loads("<!DOCTYPE R [<!ENTITY e 'x'>]><R a='&e;'/>"));
    EXPECT_FALSE(loads("<!DOCTYPE R [<!ENTITY a 'x'><!ENTITY b '&a;&a;'>]><R>&b;</R>"));
    EXPECT_FALSE(
        loads("<?xml version='1.0'?><!DOCTYPE html PUBLIC '-//W3C//DTD' 'http://x/y.dtd'>"
              "<html/>"));
}

TEST(XmlDocument, DepthIsBounded) {
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += "<a>";
    }
    EXPECT_FALSE(loads(deep));
}

std::string bodyOf(std::size_t bytes) {
    const std::string row = "<I a='" + std::string(4 * 1024, 'x') + "'/>";
    std::string text = "<R>";
    while (text.size() + row.size() < bytes) {
        text += row;
    }
    text += "</R>";
    return text + std::string(bytes - text.size(), ' ');
}

TEST(XmlDocument, AValueMaySpanTheEndOfABodyOver10MB) {
    EXPECT_TRUE(loads(bodyOf(std::size_t{12} * 1024 * 1024)));
}

TEST(XmlDocument, BodiesOver16MiBAreRefused) {
    EXPECT_EQ(largestAnswer, std::size_t{16} * 1024 * 1024);
    EXPECT_TRUE(loads(bodyOf(largestAnswer)));
    EXPECT_FALSE(loads(bodyOf(largestAnswer + 1)));
}

std::string attributes(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += " a" + std::to_string(i) + "=''";
    }
    return text;
}

std::string elementOf(std::size_t attributeCount) {
    return "<x" + attributes(attributeCount) + "/>";
}

TEST(XmlDocument, AThousandAttributesAnElementAndNoMore) {
    EXPECT_TRUE(loads(elementOf(1000)));
    EXPECT_FALSE(loads(elementOf(1001)));
    EXPECT_TRUE(
        loads("<R>" + elementOf(900) + elementOf(900) + "<x" + attributes(900) + "></x></R>"));
    EXPECT_FALSE(loads("<?xml version='1.0'?><R><!-- c --><?p i?><![CDATA[d]]>t" + elementOf(1001) +
                       "</R>"));
}

// What takes the parser days is refused before it comes to it.
TEST(XmlDocument, MillionsOfAttributesAreRefusedAtOnce) {
    const std::string many = "<x" + attributes(1'000'000);
    EXPECT_FALSE(loads(many + "/>"));
    EXPECT_FALSE(loads("<R>" + std::string(100'000, ' ') + many + "/></R>"));
    EXPECT_FALSE(loads(many));
}

TEST(XmlDocument, OnlyEqualSignsBetweenNameAndValueAreCounted) {
    const std::string many(5000, '=');
    EXPECT_TRUE(loads("<R a='" + many + "' b=\"" + many + "' '\">" + many + "</R>"));
    EXPECT_TRUE(loads("<R><!-- <x" + many + "> ' \" --><?pi <x " + many + "> ' \" ?><![CDATA[<x " +
                      many + "> ' \" ]]></R>"));
    EXPECT_FALSE(loads("<R><!-- ' -->" + elementOf(1001) + "</R>"));
    EXPECT_FALSE(loads("<R a='\">'>" + elementOf(1001) + "</R>"));
    EXPECT_FALSE(loads("<R><![CDATA[\"]]]>" + elementOf(1001) + "<?p '?></R>"));
}

// The parser would read on behind an error, and count what a value seems to hold.
TEST(XmlDocument, NothingIsReadBehindAnError) {
    const std::string hidden = attributes(1'000'000);
    EXPECT_FALSE(loads("<x a=\"<b" + hidden + ">"));
    EXPECT_FALSE(loads("<R>&nothing;<x" + hidden + "/></R>"));
    EXPECT_FALSE(loads("<R></S><!-- ><x" + hidden + "/></R>"));
}

std::string utf16(std::string_view ascii, bool highFirst) {
    std::string text(highFirst ? "\xFE\xFF" : "\xFF\xFE");
    for (const char c : ascii) {
        text += highFirst ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return text;
}

TEST(XmlDocument, AttributesOfUtf16AreCountedToo) {
    for (const bool highFirst : {true, false}) {
        for (const std::string declaration : {"", "<?xml version='1.0' encoding='UTF-16'?>"}) {
            EXPECT_TRUE(loads(utf16(declaration + elementOf(1000), highFirst)));
            EXPECT_FALSE(loads(utf16(declaration + elementOf(1001), highFirst)));
            // Bytes of a letter that would be a quote on their own.
            const std::string letter = highFirst ? "\x22\x3D" : "\x3D\x22";
            EXPECT_FALSE(loads(utf16(declaration + "<R>", highFirst) + letter +
                               utf16(elementOf(1001) + "</R>", highFirst).substr(2)));
        }
        const std::string bare =
            utf16("<?xml version='1.0' encoding='UTF-16'?>" + elementOf(1001), highFirst);
        EXPECT_FALSE(loads(bare.substr(2)));
    }
    EXPECT_TRUE(loads(utf16("<?xml version='1.0' encoding='UTF-16'?><R a='1'/>", true)));
}

TEST(XmlDocument, EncodingsThatHideAsciiAreRefused) {
    for (const char* encoding : {"UTF-7", "IBM037", "UTF-16", "UCS-4", "UTF-32", "JAVA", "C99",
                                 "ISO-2022-JP", "HZ", "windows-1252x"}) {
        EXPECT_FALSE(loads("<?xml version='1.0' encoding='" + std::string(encoding) + "'?><R/>"))
            << encoding;
    }
    EXPECT_FALSE(loads(std::string("\0\0\0<\0\0\0R\0\0\0/\0\0\0>", 16)));
    EXPECT_FALSE(loads(std::string("<\0\0\0R\0\0\0/\0\0\0>\0\0\0", 16)));
    EXPECT_FALSE(loads(utf16("<?xml version='1.0' encoding='UTF-8'?><R/>", true)));
    // All but the first two are read with iconv's help, which libxml2 may be without.
    std::vector<const char*> readable{"us-ascii", "utf-8"};
    if (xmlHasFeature(XML_WITH_ICONV) != 0) {
        readable.insert(readable.end(), {"iso-8859-15", "Windows-1250", "cp850"});
    }
    for (const char* encoding : readable) {
        EXPECT_TRUE(loads("<?xml version='1.0' encoding='" + std::string(encoding) + "'?><R/>"))
            << encoding;
    }
}

TEST(XmlDocument, TheWholeAnswerIsBoundedToo) {
    const auto repeated = [](std::string_view piece, std::size_t count) {
        std::string text = "<R>";
        for (std::size_t i = 0; i < count; ++i) {
            text += piece;
        }
        return text + "</R>";
    };
    EXPECT_TRUE(loads(repeated("<x/>", 199'999)));
    EXPECT_FALSE(loads(repeated("<x/>", 200'000)));
    EXPECT_FALSE(loads(repeated("t<!---->", 200'000)));
    EXPECT_FALSE(loads(repeated("t<?p?>", 200'000)));
    EXPECT_FALSE(loads(repeated("<![CDATA[]]>t", 200'000)));
    EXPECT_TRUE(loads(repeated("<x a='' b='' c='' d='' e=''/>", 199'000)));
    EXPECT_FALSE(loads(repeated("<x a='' b='' c='' d='' e='' f=''/>", 199'000)));
    std::string names = "<R>";
    std::string prefixes = "<R";
    for (int i = 0; i < 10'000; ++i) {
        names += "<n" + std::to_string(i) + "/>";
        prefixes += i > 100 ? "" : " xmlns:p" + std::to_string(i) + "='u'";
    }
    EXPECT_FALSE(loads(names + "</R>"));
    EXPECT_FALSE(loads(prefixes + "/>"));
}

TEST(XmlDocument, PrefixesOfAttributesAndAmpersands) {
    const XmlDocument document =
        loaded("<R xmlns:p='u' p:c='2' q:d='&amp;&#38;&amp;lt;&#x26;#38; &lt;' e=''/>");
    const XmlAttributes attributes = document.documentElement().attributes();
    ASSERT_EQ(attributes.length(), 3U);
    EXPECT_TRUE(attributes.item(0).hasPrefix());
    EXPECT_FALSE(attributes.item(1).hasPrefix());
    EXPECT_EQ(attributes.item(1).name(), "q:d");
    EXPECT_EQ(attributes.item(1).text(), "&&&lt;&#38; <");
    EXPECT_EQ(document.xml(),
              "<R xmlns:p=\"u\" p:c=\"2\" q:d=\"&amp;&amp;&amp;lt;&amp;#38; &lt;\" e=\"\"/>\r\n");
    EXPECT_EQ(attributes.item(1).text(), "&&&lt;&#38; <") << "writing takes nothing away";
}

TEST(XmlDocument, AFailedLoadEmptiesWhatWasThere) {
    XmlDocument document = loaded("<R/>");
    EXPECT_FALSE(document.loadXML("<R"));
    EXPECT_TRUE(document.empty());
    EXPECT_EQ(document.childCount(), 0U);
    EXPECT_FALSE(document.documentElement());
    EXPECT_FALSE(document.child(0));
}

TEST(XmlDocument, NodesSurviveAMoveOfTheDocument) {
    XmlDocument first = loaded("<R><A n='1'/></R>");
    const XmlNode node = first.documentElement().child(0);
    XmlDocument second = std::move(first);
    EXPECT_EQ(node.attributes().item(0).text(), "1");
    EXPECT_EQ(second.documentElement().child(0).nodeName(), "A");
    second = XmlDocument();
    EXPECT_TRUE(second.empty());
}

TEST(XmlDocument, WritesItselfOut) {
    EXPECT_EQ(loaded("<?xml version='1.0'?><R a='é'><B/></R>").xml(),
              "<?xml version=\"1.0\"?>\r\n<R a=\"é\"><B/></R>\r\n");
    EXPECT_EQ(loaded("<R/>").xml(), "<R/>\r\n");
    EXPECT_EQ(loaded("<R><B c='1'/></R>").documentElement().child(0).xml(), "<B c=\"1\"/>");
}

TEST(XmlDocument, SavesACopy) {
    const auto file = std::filesystem::temp_directory_path() / "tarn_xml_document_test.XML";
    for (const char* encoding : {"ISO-8859-1", "windows-1252"}) {
        const std::string start = "<?xml version='1.0' encoding='" + std::string(encoding) + "'?>";
        EXPECT_TRUE(loaded(start + "<R a='\xE7 &#8364; &#9786;'/>").save(file.string()));
        EXPECT_NE(contentOf(file).find(encoding), std::string::npos);
        EXPECT_NE(contentOf(file).find('\xE7'), std::string::npos);
        EXPECT_NE(contentOf(file).find("&#9786;"), std::string::npos) << "no such letter there";
        EXPECT_EQ(loaded(contentOf(file)).documentElement().attributes().item(0).text(), "ç € ☺");
    }
    std::filesystem::remove(file);
    XmlDocument document = loaded("<R/>");
    EXPECT_FALSE(document.save("/no/such/directory/copy.XML"));
    EXPECT_FALSE(XmlDocument().save(file.string()));
}

}  // namespace
}  // namespace tarn::test

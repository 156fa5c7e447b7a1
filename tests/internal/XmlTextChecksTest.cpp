// What the checks on a document's text report besides its faults: the
// deepest nesting of its elements, which lets readers free a part of a
// shallow document without first looking at how deep that part is.
#include "base/VELXMLWellFormed.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

using qrm::detail::CheckXmlText;
using qrm::detail::XmlFault;

std::size_t DepthOf(const std::string& text)
{
    XmlFault fault;
    std::size_t depth = 0;
    EXPECT_TRUE(CheckXmlText(text.data(), text.size(), fault, &depth)) << fault.what;
    return depth;
}

TEST(XmlTextChecksDepth, RootAloneIsOneDeep)
{
    EXPECT_EQ(1u, DepthOf("<a/>"));
    EXPECT_EQ(1u, DepthOf("<a></a>"));
    EXPECT_EQ(1u, DepthOf("<?xml version=\"1.0\"?>\n<a x=\"1\">text &amp; more</a>\n"));
}

TEST(XmlTextChecksDepth, DeepestNestingAnywhereInTheDocumentCounts)
{
    EXPECT_EQ(2u, DepthOf("<a><b/><b></b></a>"));
    EXPECT_EQ(4u, DepthOf("<a><b><c/></b><d><e><f></f></e></d><g/></a>"));
    EXPECT_EQ(4u, DepthOf("<a><d><e><f/></e></d><b><c/></b></a>"));
}

TEST(XmlTextChecksDepth, CommentsInstructionsCdataAndValuesAddNoDepth)
{
    EXPECT_EQ(1u, DepthOf("<!--<x>--><a v=\"&lt;y&gt;\"><!-- <x><y> --><?p <q>?><![CDATA[<z><z>]]></a><?r <s>?>"));
}

TEST(XmlTextChecksDepth, DepthIsLeftAsItWasWhenTheTextIsNotWellFormed)
{
    const std::string text = "<a><b><c x=\"1\" x=\"2\"/></b></a>";
    XmlFault fault;
    std::size_t depth = 7;
    EXPECT_FALSE(CheckXmlText(text.data(), text.size(), fault, &depth));
    EXPECT_EQ("an attribute given twice: x", fault.what);
    EXPECT_EQ(7u, depth);
}

}  // namespace

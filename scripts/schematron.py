#!/usr/bin/env python3
"""Turns an ISO Schematron schema (query binding xslt2; its <include>s are
read from the files they name) into an XSLT 2.0 stylesheet that writes an
SVRL report, so Saxon-HE can run the rules.

    schematron.py RULES.sch OUT.xsl

Each pattern walks the whole document in its own mode; within a pattern a
node is checked by the first rule whose context matches it (earlier rules get
higher template priorities), as the Schematron standard says. Variables of
the schema and of its patterns are global, as rule sets written for the
usual XSLT implementation expect."""
import os
import sys
import xml.etree.ElementTree as ET
from xml.sax.saxutils import escape, quoteattr

SCH = "{http://purl.oclc.org/dsdl/schematron}"


def message(element):
    """The assertion's text, with <value-of> and <name> evaluated."""
    out = [escape(element.text or "")]
    for child in element:
        if child.tag == SCH + "value-of":
            out.append('<xsl:value-of select=%s/>' % quoteattr(child.get("select")))
        elif child.tag == SCH + "name":
            out.append('<xsl:value-of select=%s/>' % quoteattr("name(%s)" % child.get("path", ".")))
        else:
            out.append(escape("".join(child.itertext())))
        out.append(escape(child.tail or ""))
    return "".join(out)


def variable(let):
    if let.get("value") is not None:
        return '<xsl:variable name=%s select=%s/>' % (quoteattr(let.get("name")), quoteattr(let.get("value")))
    return '<xsl:variable name=%s>%s</xsl:variable>' % (
        quoteattr(let.get("name")), "".join(ET.tostring(c, encoding="unicode") for c in let))


def check(element, failed):
    test = element.get("test")
    condition = "not(%s)" % test if failed else "(%s)" % test
    tag = "svrl:failed-assert" if failed else "svrl:successful-report"
    attributes = "".join(' %s=%s' % (name, quoteattr(element.get(name)))
                         for name in ("id", "flag", "role") if element.get(name) is not None)
    return ('<xsl:if test=%s><%s%s test=%s location="{path()}"><svrl:text>%s</svrl:text></%s></xsl:if>'
            % (quoteattr(condition), tag, attributes, quoteattr(test), message(element), tag))


def resolve_includes(element, base):
    """Replaces each <include href> by the root element of the file it names."""
    for index, child in enumerate(list(element)):
        if child.tag == SCH + "include":
            path = os.path.join(os.path.dirname(base), child.get("href"))
            included = ET.parse(path).getroot()
            resolve_includes(included, path)
            included.tail = child.tail
            element.remove(child)
            element.insert(index, included)
        else:
            resolve_includes(child, base)


def compile_schema(root):
    # XSLT 2.0 rule sets use the schema types (xs:decimal) without declaring them.
    namespaces = {"xs": "http://www.w3.org/2001/XMLSchema"}
    namespaces.update({ns.get("prefix"): ns.get("uri") for ns in root.iter(SCH + "ns")})
    declarations = "".join(' xmlns:%s=%s' % (p, quoteattr(u)) for p, u in namespaces.items())
    out = ['<?xml version="1.0" encoding="UTF-8"?>',
           '<xsl:stylesheet version="2.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"'
           ' xmlns:svrl="http://purl.oclc.org/dsdl/svrl"%s exclude-result-prefixes="#all">' % declarations,
           '<xsl:output method="xml" indent="yes"/>']
    patterns = root.findall(SCH + "pattern")
    out += [variable(let) for let in root.findall(SCH + "let")]
    out += [variable(let) for pattern in patterns for let in pattern.findall(SCH + "let")]
    out.append('<xsl:template match="/"><svrl:schematron-output>')
    for index, pattern in enumerate(patterns):
        out.append('<svrl:active-pattern id=%s/>' % quoteattr(pattern.get("id", str(index))))
        out.append('<xsl:apply-templates select="/" mode="M%d"/>' % index)
    out.append('</svrl:schematron-output></xsl:template>')
    for index, pattern in enumerate(patterns):
        mode = "M%d" % index
        rules = pattern.findall(SCH + "rule")
        for order, rule in enumerate(rules):
            body = [variable(let) for let in rule.findall(SCH + "let")]
            body.append('<svrl:fired-rule context=%s/>' % quoteattr(rule.get("context")))
            for child in rule:
                if child.tag == SCH + "assert":
                    body.append(check(child, True))
                elif child.tag == SCH + "report":
                    body.append(check(child, False))
            body.append('<xsl:apply-templates select="*" mode="%s"/>' % mode)
            out.append('<xsl:template match=%s priority="%d" mode="%s">%s</xsl:template>'
                       % (quoteattr(rule.get("context")), len(rules) - order + 1000, mode, "".join(body)))
        out.append('<xsl:template match="*" priority="-2" mode="%s">'
                   '<xsl:apply-templates select="*" mode="%s"/></xsl:template>' % (mode, mode))
        out.append('<xsl:template match="/" priority="-1" mode="%s">'
                   '<xsl:apply-templates select="*" mode="%s"/></xsl:template>' % (mode, mode))
    out.append('</xsl:stylesheet>')
    return "\n".join(out)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: schematron.py RULES.sch OUT.xsl")
    schema = ET.parse(sys.argv[1]).getroot()
    resolve_includes(schema, sys.argv[1])
    with open(sys.argv[2], "w", encoding="utf-8") as f:
        f.write(compile_schema(schema))

#!/usr/bin/env bash
# Checks an e-invoice made by Vorn with tools that have nothing to do with
# Vorn's own code: the XML against the UN/CEFACT CII D16B schema (xmllint)
# and against the EN 16931 rules (and XRechnung's, when given) in their
# official Schematron, compiled to XSLT and run by Saxon-HE; a Factur-X PDF
# first has its factur-x.xml taken out by qpdf.
#
#   scripts/validate-einvoice.sh INVOICE.xml|INVOICE.pdf ARTEFACTS_DIR
#
# ARTEFACTS_DIR holds the official artefacts, as published by CEN/TC 434
# (the "en16931-cii" validation release) and KoSIT:
#   ARTEFACTS_DIR/schema/.../CrossIndustryInvoice_100pD16B.xsd   (found anywhere below)
#   ARTEFACTS_DIR/xslt/EN16931-CII-validation.xslt
#   ARTEFACTS_DIR/xrechnung/XRechnung-CII-validation.xsl         (optional)
# Needs libxml2-utils, libsaxonhe-java and qpdf (Debian packages).
set -euo pipefail

if [ $# -ne 2 ]; then
  echo "usage: $0 INVOICE.xml|INVOICE.pdf ARTEFACTS_DIR" >&2
  exit 2
fi
input=$1
artefacts=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

xml=$input
if [[ "$input" == *.pdf ]]; then
  xml=$work/factur-x.xml
  qpdf --show-attachment=factur-x.xml "$input" > "$xml"
  echo "factur-x.xml taken out of $input"
fi

xsd=$(find "$artefacts" -name CrossIndustryInvoice_100pD16B.xsd | head -n 1)
if [ -z "$xsd" ]; then
  echo "no CrossIndustryInvoice_100pD16B.xsd below $artefacts" >&2
  exit 2
fi
xmllint --noout --schema "$xsd" "$xml"

saxon=/usr/share/java/Saxon-HE.jar
failed=0
for rules in "$artefacts/xslt/EN16931-CII-validation.xslt" "$artefacts/xrechnung/XRechnung-CII-validation.xsl"; do
  [ -f "$rules" ] || continue
  java -jar "$saxon" -s:"$xml" -xsl:"$rules" -o:"$work/report.svrl"
  # Fatal assertions are errors; warnings are shown but pass.
  errors=$(grep -c '<svrl:failed-assert[^>]*flag="fatal"' "$work/report.svrl" || true)
  warnings=$(grep -c '<svrl:failed-assert[^>]*flag="warning"' "$work/report.svrl" || true)
  grep -A3 '<svrl:failed-assert' "$work/report.svrl" | grep -o '<svrl:text>.*' || true
  echo "$(basename "$rules"): $errors errors, $warnings warnings"
  [ "$errors" -eq 0 ] || failed=1
done
exit $failed

#!/usr/bin/env bash
# Checks an e-invoice made by Vorn with tools that have nothing to do with
# Vorn's own code: the XML against the UN/CEFACT CII D16B schema (xmllint)
# and against the EN 16931 rules (and XRechnung's, when given) in their
# official Schematron, run by Saxon-HE (a rule set published as Schematron
# is first turned into XSLT by scripts/schematron.py); a Factur-X PDF first
# has its factur-x.xml taken out by qpdf.
#
#   scripts/validate-einvoice.sh INVOICE.xml|INVOICE.pdf ARTEFACTS_DIR
#
# ARTEFACTS_DIR holds the official artefacts, as published by CEN/TC 434
# (the "en16931-cii" validation release) and KoSIT:
#   ARTEFACTS_DIR/schema/.../CrossIndustryInvoice_100pD16B.xsd   (found anywhere below)
#   ARTEFACTS_DIR/xslt/EN16931-CII-validation.xslt, or
#   ARTEFACTS_DIR/EN16931-CII-validation-preprocessed.sch
#   ARTEFACTS_DIR/xrechnung/XRechnung-CII-validation.xsl, or      (optional)
#   ARTEFACTS_DIR/xrechnung/cii/XRechnung-CII-validation.sch with its ../common.sch
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
checked=0
here=$(dirname "$0")
# Each rule set in its XSLT form, or made from its Schematron.
rule_set() {
  local xslt=$1 sch=$2
  if [ -f "$xslt" ]; then
    echo "$xslt"
  elif [ -f "$sch" ]; then
    local made
    made=$work/$(basename "${xslt%.*}").xsl
    /usr/bin/python3 "$here/schematron.py" "$sch" "$made"
    echo "$made"
  fi
}
rule_sets=("$(rule_set "$artefacts/xslt/EN16931-CII-validation.xslt" "$artefacts/EN16931-CII-validation-preprocessed.sch")")
# XRechnung's own rules apply to the invoices that claim to follow it.
if grep -q 'kosit:xrechnung' "$xml"; then
  rule_sets+=("$(rule_set "$artefacts/xrechnung/XRechnung-CII-validation.xsl" "$artefacts/xrechnung/cii/XRechnung-CII-validation.sch")")
fi
# Fatal assertions are errors; warnings are shown but pass.
count() { xmllint --xpath "count(//*[local-name()='failed-assert'][@flag='$1'])" "$work/report.svrl"; }
for rules in "${rule_sets[@]}"; do
  [ -n "$rules" ] || continue
  checked=$((checked + 1))
  java -jar "$saxon" -s:"$xml" -xsl:"$rules" -o:"$work/report.svrl"
  errors=$(count fatal)
  warnings=$(count warning)
  xmllint --xpath "//*[local-name()='failed-assert']/*[local-name()='text']/text()" "$work/report.svrl" 2>/dev/null || true
  echo "$(basename "$rules"): $errors errors, $warnings warnings"
  [ "$errors" -eq 0 ] || failed=1
done
if [ "$checked" -eq 0 ]; then
  echo "no EN 16931 rules below $artefacts: only the schema was checked" >&2
  exit 2
fi
exit $failed

"""Reads a Factur-X PDF with pikepdf, independently of the qpdf code that
wrote it, and prints what a receiver looks at as one JSON object."""
import json
import sys

import pikepdf

pdf = pikepdf.open(sys.argv[1])
root = pdf.Root
out = {"version": pdf.pdf_version, "attachments": {}, "af": [], "intents": [], "xmp": {}}
for name, spec in pdf.attachments.items():
    obj = spec.obj
    out["attachments"][name] = {
        "relationship": str(obj.get("/AFRelationship", "")),
        "subtype": str(spec.get_file().obj.get("/Subtype", "")),
        "bytes": len(spec.get_file().read_bytes()),
    }
for spec in root.get("/AF", []):
    out["af"].append(str(spec.get("/UF", spec.get("/F", ""))))
for intent in root.get("/OutputIntents", []):
    profile = intent.get("/DestOutputProfile")
    out["intents"].append({"s": str(intent.get("/S")), "n": int(profile.get("/N")) if profile is not None else 0})
with pdf.open_metadata() as meta:
    for key in ("pdfaid:part", "pdfaid:conformance", "dc:title"):
        out["xmp"][key] = str(meta.get(key, ""))
    fx = "{urn:factur-x:pdfa:CrossIndustryDocument:invoice:1p0#}"
    for key in ("DocumentFileName", "DocumentType", "ConformanceLevel", "Version"):
        out["xmp"]["fx:" + key] = str(meta.get(fx + key, ""))
out["metadataFiltered"] = "/Filter" in root.Metadata


# Every font of the file carries its glyphs: a Type 3 font draws them with its
# own content streams, every other font needs its program in its descriptor.
def embedded(font):
    if font.get("/Subtype") == "/Type3":
        return "/CharProcs" in font
    if font.get("/Subtype") == "/Type0":
        font = font["/DescendantFonts"][0]
    descriptor = font.get("/FontDescriptor")
    return descriptor is not None and any(k in descriptor for k in ("/FontFile", "/FontFile2", "/FontFile3"))


# Descendant CID fonts are checked through the Type 0 font that uses them.
fonts = [embedded(obj) for obj in pdf.objects
         if isinstance(obj, pikepdf.Dictionary) and obj.get("/Type") == "/Font"
         and obj.get("/Subtype") not in ("/CIDFontType0", "/CIDFontType2")]
out["fontsEmbedded"] = all(fonts) and len(fonts) > 0
print(json.dumps(out))

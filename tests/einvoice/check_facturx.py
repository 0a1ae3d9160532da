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
# Every font of the file, wherever the pages use it from, has its program.
fonts = []
for obj in pdf.objects:
    if isinstance(obj, pikepdf.Dictionary) and obj.get("/Type") == "/FontDescriptor":
        fonts.append(any(k in obj for k in ("/FontFile", "/FontFile2", "/FontFile3")))
out["fontsEmbedded"] = all(fonts) and len(fonts) > 0
print(json.dumps(out))

# Turns the handbook's Markdown (BE) into a page (KI) with a head of its own.
execute_process(COMMAND ${CMARK_GFM} --extension table --unsafe ${BE} OUTPUT_VARIABLE torzs RESULT_VARIABLE hiba)
if(hiba)
  message(FATAL_ERROR "cmark-gfm: ${hiba}")
endif()
file(WRITE ${KI} "<!DOCTYPE html>
<html lang=\"hu\">
<head>
<meta charset=\"utf-8\">
<meta name=\"viewport\" content=\"width=device-width\">
<title>Korvend – kézikönyv</title>
<style>
body { max-width: 46em; margin: 2em auto; padding: 0 1em; font: 1em/1.5 sans-serif; color: #111; background: #fff; }
img { max-width: 100%; height: auto; border: 1px solid #ccc; }
table { border-collapse: collapse; }
td, th { padding: 0.3em 0.6em; border: 1px solid #ccc; vertical-align: top; }
</style>
</head>
<body>
${torzs}</body>
</html>
")

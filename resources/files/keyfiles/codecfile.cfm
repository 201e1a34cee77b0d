clear-channel|clear channel at 64000 bps
g711alaw|g.711 a-law 64000 bps
g711ulaw|g.711 u-law 64000 bps
g722-64|g.722 64000 bps
g723ar53|g.723.1 annex a 5300 bps
g723ar63|g.723.1 annex a 6300 bps
g723r53|g.723.1 5300 bps
g723r63|g.723.1 6300 bps
g726r16|g.726 16000 bps
g726r24|g.726 24000 bps
g726r32|g.726 32000 bps
g728|g.728 16000 bps
g729br8|g.729 annex b 8000 bps
g729r8|g.729 8000 bps
gsmamr-nb|gsm adaptive multi-rate narrow band
gsmefr|gsm enhanced full rate 12200 bps
gsmfr|gsm full rate 13200 bps
ilbc|internet low bitrate codec
isac|internet speech audio codec
mp4a-latm|mpeg-4 low delay audio
opus|opus

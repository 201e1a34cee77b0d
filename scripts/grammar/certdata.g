# Certificate data: the rows of hex words that a certificate line of a
# certificate chain is followed by, up to its quit. Each row is one command
# of the data level; its words, joined in the order written, name it (k/wa),
# so the rows of one certificate stand side by side in their order. A word
# is a group of up to eight hex digits (keyfiles/certdatafile.cfm: a group of
# decimal digits alone, "00000000" too, is taken by the table's first word,
# so it never reaches the hex range, whose range test cannot take a value of
# zeros). Nothing else is a word of this level, so the quit and every line of
# the chain or of the top level leave it.
file crypto_cert_data.cfm
&certdatafile.cfm :k/lb/le/wa "certificate data" $

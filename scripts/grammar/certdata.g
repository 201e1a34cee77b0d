# Certificate data: the rows of hex words that follow a certificate line of a
# certificate chain, up to its quit. The device takes them in a level of its
# own; here each row is a line of the chain, read beside the certificate it
# follows, so that a chain stays one level deep: a merge writes a second
# level with a NUL indent, and a text read back ends there. The words of a
# row, joined in the order written, name it (k/wa): the rows stand side by
# side in their order, and no two rows of a certificate replace each other.
# A word is a group of up to eight hex digits (keyfiles/certdatafile.cfm):
# a group of decimal digits alone, "00000000" too, is taken by the table's
# first word, so it never reaches the hex range, whose range test cannot
# take a value of zeros. Upper-case groups are read through the lower-case
# pass and kept in lower case. Nothing else is a word of the data, so every
# other line of the chain or of the top level is read as before.
file crypto_cert.cfm
&certdatafile.cfm :k/lb/le/wa "certificate data" $

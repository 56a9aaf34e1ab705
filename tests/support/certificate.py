#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes a certificate that vouches for itself: FILE HOST FROM UNTIL, the last two in days from now.

FILE gets key and certificate, FILE.public the certificate alone."""

import datetime
import ipaddress
import sys

from cryptography import x509
from cryptography.hazmat.primitives import hashes, serialization
from cryptography.hazmat.primitives.asymmetric import ec


def alternative(host):
    try:
        return x509.IPAddress(ipaddress.ip_address(host))
    except ValueError:
        return x509.DNSName(host)


def main(path, host, first, last):
    key = ec.generate_private_key(ec.SECP256R1())
    name = x509.Name([x509.NameAttribute(x509.NameOID.COMMON_NAME, host)])
    now = datetime.datetime.utcnow()
    certificate = (
        x509.CertificateBuilder().subject_name(name).issuer_name(name).public_key(key.public_key())
        .serial_number(x509.random_serial_number())
        .not_valid_before(now + datetime.timedelta(days=int(first)))
        .not_valid_after(now + datetime.timedelta(days=int(last)))
        .add_extension(x509.SubjectAlternativeName([alternative(host)]), critical=False)
        .add_extension(x509.BasicConstraints(ca=True, path_length=None), critical=True)
        .sign(key, hashes.SHA256()))
    public = certificate.public_bytes(serialization.Encoding.PEM)
    private = key.private_bytes(serialization.Encoding.PEM, serialization.PrivateFormat.PKCS8,
                                serialization.NoEncryption())
    for target, content in ((path, private + public), (path + ".public", public)):
        with open(target, "wb") as file:
            file.write(content)


main(*sys.argv[1:])
